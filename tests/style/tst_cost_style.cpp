#include "support/filereads.h"
#include "support/testing.h"

#include "widgets/label.h"
#include "widgets/pushbutton.h"

#include <QFileInfo>
#include <QPixmapCache>

// What styles and pictures may cost, counted in files and not in time.

namespace
{

const char styleFile[] = CWIDGET_SOURCE_DIR "/style/widget-style.xml";

} // namespace

class tst_cost_style : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void styleFileIsReadOnce();
    void widgetsReadNoFile();
    void picturesAreDecodedOnce();
};

void tst_cost_style::initTestCase()
{
    if (!testing::FileReads::seesFiles() || !testing::FileReads::seesPictures())
        CWIDGET_SKIP("what this Qt reads is not seen");
    QVERIFY(CWidgetStyle::initialize(QLatin1String(styleFile))); // Qt looks for its fonts
}

void tst_cost_style::styleFileIsReadOnce()
{
    const testing::FileReads reads;
    QVERIFY(CWidgetStyle::initialize(QLatin1String(styleFile)));
    QCOMPARE(reads.files(), QList<QByteArray>() << styleFile);
    QCOMPARE(reads.bytes(), QFileInfo(QLatin1String(styleFile)).size());
}

void tst_cost_style::widgetsReadNoFile()
{
    const testing::FileReads reads;
    for (int i = 0; i < 100; ++i) {
        CLabel label;
        CWidgetStyle::getWidgetStyle(QLatin1String("CLabel"), nullptr);
        label.updateWidgetStyle();
    }
    QCOMPARE(reads.files(), QList<QByteArray>());
    QCOMPARE(reads.pictures(), 0);
}

void tst_cost_style::picturesAreDecodedOnce()
{
    QPixmapCache::clear();
    const testing::FileReads reads;
    for (int i = 0; i < 100; ++i) {
        CPushButton button;
        button.setStyle(CPushButton::GreenStyle, true);
    }
    QCOMPARE(reads.pictures(), 1);
    QCOMPARE(reads.files(), QList<QByteArray>());
}

QTEST_MAIN(tst_cost_style)
#include "tst_cost_style.moc"
