#include "gallerywindow.h"

#include "support/desktopmain.h"
#include "support/rows.h"

namespace
{

const QRect screenRect(120, 44, 680, 512);
const QRect hintRect(142, 564, 520, 28);
const QRect backRect(0, 557, 120, 43);
const QRect greenRect(120 + 152, 44 + 52, 120, 40);
const QPoint serifButton(120 + 152 + 60, 44 + 52 + 20);
const QPoint firstPicture(120 + 24 + 76, 44 + 16 + 50);

QString latin(const char* text)
{
    return QString::fromLatin1(text);
}

/// The middle of a menu entry.
QPoint menu(int entry)
{
    return QPoint(60, 44 + 25 + 50 * entry);
}

/// Number \a entry of the gallery's menu that is called \a name.
int entryOf(const QString& name)
{
    QProcess usage;
    usage.start(latin(GALLERY), QStringList(latin("--help")));
    usage.waitForFinished(15000);
    const QString text = QString::fromLatin1(usage.readAllStandardOutput());
    const QString names = text.section(latin("start with: "), 1).section(QLatin1Char('\n'), 0, 0);
    return names.split(latin(", ")).indexOf(name);
}

} // namespace

class tst_gallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithItsFirstScreen();
    void startsWithTheWantedScreen();
    void menuChangesTheScreen();
    void pressedButtonLooksPressed();
    void pictureOpensAboveAndBackReturns();
    void themeIsRewrittenAndTakenOver();
    void unknownArgumentsAreRefused();
    void closingTheWindowEndsTheProcess();
};

void tst_gallery::startsWithItsFirstScreen()
{
    GalleryWindow window;
    QVERIFY(window.waitUntilShown());
    const QImage controls = GalleryWindow::shot(latin("controls"));
    QCOMPARE(controls.size(), QSize(800, 600));
    QCOMPARE(window.waitFor(controls, screenRect), QString());
    QCOMPARE(window.waitFor(controls, QRect(0, 44, 120, 512)), QString());
}

void tst_gallery::startsWithTheWantedScreen()
{
    GalleryWindow window(QStringList() << latin("--screen") << latin("pictures"));
    QVERIFY(window.waitUntilShown());
    QCOMPARE(window.waitFor(GalleryWindow::shot(latin("pictures")), screenRect), QString());
}

void tst_gallery::menuChangesTheScreen()
{
    GalleryWindow window;
    QVERIFY(window.waitUntilShown());
    const char* const names[] = {"theme", "pictures", "controls"};
    for (size_t i = 0; i < sizeof names / sizeof names[0]; ++i) {
        const testing::InRow inRow(names[i]);
        const int entry = entryOf(latin(names[i]));
        QVERIFY(entry >= 0);
        window.click(menu(entry));
        const QImage shot = GalleryWindow::shot(latin(names[i]));
        QCOMPARE(window.waitFor(shot, screenRect), QString());
        QCOMPARE(window.waitFor(shot, QRect(0, 44, 120, 512)), QString());
    }
}

void tst_gallery::pressedButtonLooksPressed()
{
    GalleryWindow window;
    QVERIFY(window.waitUntilShown());
    const QImage controls = GalleryWindow::shot(latin("controls"));
    QCOMPARE(window.waitFor(controls, screenRect), QString());
    const QImage hintBefore = window.grab().copy(hintRect);

    window.press(greenRect.center());
    // The rim is the picture's own; in the middle stands the text.
    QImage expected = window.grab();
    const QImage pressed =
        CWidgetStyle::getButtonStatus(CWidgetStyle::GreenPressed, true).toImage();
    const QRect bare(8, 6, 20, 28);
    for (int y = bare.top(); y <= bare.bottom(); ++y) {
        for (int x = bare.left(); x <= bare.right(); ++x)
            expected.setPixel(greenRect.topLeft() + QPoint(x, y), pressed.pixel(x, y));
    }
    QCOMPARE(window.waitFor(expected, bare.translated(greenRect.topLeft())), QString());
    QVERIFY(window.grab().copy(hintRect) == hintBefore);

    window.release();
    QCOMPARE(window.waitFor(controls, screenRect), QString());
    QVERIFY(window.grab().copy(hintRect) != hintBefore);
}

void tst_gallery::pictureOpensAboveAndBackReturns()
{
    GalleryWindow window(QStringList() << latin("--screen") << latin("pictures"));
    QVERIFY(window.waitUntilShown());
    const QImage pictures = GalleryWindow::shot(latin("pictures"));
    QCOMPARE(window.waitFor(pictures, screenRect), QString());
    window.click(firstPicture);
    for (int i = 0; i < 100 && window.grab().copy(screenRect) == pictures.copy(screenRect); ++i)
        QTest::qWait(50);
    const QImage opened = window.grab();
    QVERIFY(opened.copy(screenRect) != pictures.copy(screenRect));
    // The picture stands unscaled on the light background.
    const QImage picture(latin(":/images/ARROW-BLACK.png"));
    QCOMPARE(opened.pixel(144 + 9, 96 + 13), QColor(Qt::black).rgb());
    QVERIFY(!picture.isNull());
    window.click(backRect.center());
    QCOMPARE(window.waitFor(pictures, screenRect), QString());
}

void tst_gallery::themeIsRewrittenAndTakenOver()
{
    const testing::TemporaryFolder folder;
    const QString style =
        folder.write(latin("style.xml"),
                     testing::contentOf(latin(CWIDGET_SOURCE_DIR "/style/widget-style.xml")));
    GalleryWindow window(QStringList()
                         << latin("--style") << style << latin("--screen") << latin("theme"));
    QVERIFY(window.waitUntilShown());
    const QImage theme = GalleryWindow::shot(latin("theme"));
    QCOMPARE(window.waitFor(theme, screenRect), QString());
    QVERIFY(!testing::contentOf(style).contains("Liberation Serif"));
    const QRect menuRect(0, 44, 120, 150);
    window.click(serifButton);
    for (int i = 0; i < 200 && window.grab().copy(menuRect) == theme.copy(menuRect); ++i)
        QTest::qWait(50);
    QVERIFY(window.grab().copy(menuRect) != theme.copy(menuRect));
    QVERIFY(testing::contentOf(style).contains("family=\"Liberation Serif\""));
    QVERIFY(!testing::contentOf(style).contains("family=\"Arial\""));
}

void tst_gallery::unknownArgumentsAreRefused()
{
    const QStringList wrong[] = {
        QStringList(latin("--nonsense")),
        QStringList(latin("--screen")),
        QStringList() << latin("--screen") << latin("nonsense"),
    };
    for (size_t i = 0; i < sizeof wrong / sizeof wrong[0]; ++i) {
        const testing::InRow inRow(i);
        QProcess process;
        process.start(latin(GALLERY), wrong[i]);
        QVERIFY(process.waitForFinished(15000));
        QCOMPARE(process.exitCode(), 2);
        QVERIFY(process.readAllStandardError().contains("usage: quorlin-gallery"));
    }
}

void tst_gallery::closingTheWindowEndsTheProcess()
{
    GalleryWindow window;
    QVERIFY(window.waitUntilShown());
    window.close();
    QCOMPARE(window.exitCode(), 0);
}

CWIDGET_DESKTOP_TEST_MAIN(tst_gallery)
#include "tst_gallery.moc"
