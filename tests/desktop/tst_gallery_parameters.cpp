#include "gallerywindow.h"

#include "keymap.h"
#include "support/desktopmain.h"

namespace
{

const QRect pagesRect(144, 60, 632, 432);
const QPoint nextPage(144 + 316 + 50 + 13, 60 + 402 + 15);
const QPoint previousPage(144 + 316 - 50 - 13, 60 + 402 + 15);
const int firstField = 60 + 52 + 15;
const int fieldPitch = 56;
const int valueX = 600;
const int switchX = 144 + 316 + 13;
const QColor marked(67, 172, 232);

QString latin(const char* text)
{
    return QString::fromLatin1(text);
}

/// The value part of a field of the page, from 0.
QPoint field(int number)
{
    return QPoint(valueX, firstField + number * fieldPitch);
}

} // namespace

class tst_gallery_parameters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyKindOfValueArrives();
    void valuesAreKeptWhenPaging();
    void checkBoxTurnsAPageOn();
};

void tst_gallery_parameters::initTestCase()
{
    QVERIFY(CWidgetStyle::initialize(latin(CWIDGET_SOURCE_DIR "/style/widget-style.xml")));
}

void tst_gallery_parameters::everyKindOfValueArrives()
{
    GalleryWindow window(QStringList()
                         << latin("--log") << latin("--screen") << latin("parameters"));
    QVERIFY(window.waitUntilShown());
    QCOMPARE(window.waitFor(GalleryWindow::shot(latin("parameters")), pagesRect), QString());

    window.click(field(1)); // the mode, a choice of three
    QVERIFY(window.waitForColor(listmap::rowOfShortList(1), marked));
    window.click(listmap::rowOfShortList(2));
    QCOMPARE(window.nextLine(), latin("Mode: entry 2"));

    window.click(field(4)); // the port, a number
    const KeyMap map(CKeyPadFactory::SKP_DECIMAL);
    QVERIFY(map.waitUntilShown(window));
    window.click(map.key(Key_DelAll));
    window.click(map.key(latin("5")));
    window.click(map.key(Key_Apply)); // below the range
    window.separateClicks();
    window.click(map.key(Key_Apply));
    QCOMPARE(window.nextLine(), latin("Port: 1024"));
}

void tst_gallery_parameters::valuesAreKeptWhenPaging()
{
    GalleryWindow window(QStringList()
                         << latin("--log") << latin("--screen") << latin("parameters"));
    QVERIFY(window.waitUntilShown());
    const QImage shot = GalleryWindow::shot(latin("parameters"));
    QCOMPARE(window.waitFor(shot, pagesRect), QString());
    window.click(field(1));
    QVERIFY(window.waitForColor(listmap::rowOfShortList(1), marked));
    window.click(listmap::rowOfShortList(0));
    QCOMPARE(window.nextLine(), latin("Mode: entry 0"));
    window.moveTo(QPoint(600, 580));
    QTest::qWait(300);
    const QImage changed = window.grab();
    const QRect fields(144, 112, 632, 260);
    QVERIFY(changed.copy(fields) != shot.copy(fields));
    window.click(nextPage);
    for (int i = 0; i < 100 && window.grab().copy(fields) == changed.copy(fields); ++i)
        QTest::qWait(50);
    QVERIFY(window.grab().copy(fields) != changed.copy(fields));
    window.click(previousPage);
    QCOMPARE(window.waitFor(changed, fields), QString());
}

void tst_gallery_parameters::checkBoxTurnsAPageOn()
{
    GalleryWindow window(QStringList()
                         << latin("--log") << latin("--screen") << latin("parameters"));
    QVERIFY(window.waitUntilShown());
    QCOMPARE(window.waitFor(GalleryWindow::shot(latin("parameters")), pagesRect), QString());
    window.click(previousPage); // before the first page comes the last one, the units
    QTest::qWait(300);
    const QRect bar(400, 462, 120, 30);
    const QImage before = window.grab();
    window.click(QPoint(switchX, firstField + 2 * fieldPitch));
    QCOMPARE(window.nextLine(), latin("Service page: on"));
    for (int i = 0; i < 100 && window.grab().copy(bar) == before.copy(bar); ++i)
        QTest::qWait(50);
    QVERIFY(window.grab().copy(bar) != before.copy(bar)); // one page more
    window.click(QPoint(switchX, firstField + 2 * fieldPitch));
    QCOMPARE(window.nextLine(), latin("Service page: off"));
    QCOMPARE(window.waitFor(before, bar), QString());
}

CWIDGET_DESKTOP_TEST_MAIN(tst_gallery_parameters)

#include "tst_gallery_parameters.moc"
