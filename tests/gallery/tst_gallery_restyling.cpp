#include "panel.h"
#include "support/testing.h"
#include "widgets/toptitlearea.h"

class tst_gallery_restyling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void titleStripFollowsTheStyleFile();
};

void tst_gallery_restyling::titleStripFollowsTheStyleFile()
{
    const testing::TemporaryFolder folder;
    const QByteArray style =
        testing::contentOf(QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml"));
    const QString path = folder.write(QLatin1String("style.xml"), style);
    QVERIFY(CWidgetStyle::initialize(path));
    Panel panel(path);
    CTopTitleArea* strip = panel.findChild<CTopTitleArea*>();
    QVERIFY(strip);
    QCOMPARE(strip->font().family(), QString::fromLatin1("Arial"));
    QVERIFY(CWidgetStyle::initialize(folder.write(
        QLatin1String("other.xml"), QByteArray(style).replace("Arial", "DejaVu Sans"))));
    panel.updateWidgetStyle();
    QCOMPARE(strip->font().family(), QString::fromLatin1("DejaVu Sans"));
}

QTEST_MAIN(tst_gallery_restyling)
#include "tst_gallery_restyling.moc"
