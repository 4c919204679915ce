#include "gallerywindow.h"

#include "keymap.h"
#include "support/desktopmain.h"
#include "widgets/lineedit.h"

#include <QPainter>

namespace
{

const QRect fieldRect(120 + 140, 44 + 92, 192, 28);
const QRect rangedRect(120 + 356, 44 + 92, 176, 28);
const QRect keyboardOnlyRect(120 + 140, 44 + 332 + 80, 192, 28);
const int rowPitch = 40;
const int cursorSpace = 4;

QString latin(const char* text)
{
    return QString::fromLatin1(text);
}

// What is pressed on each keypad, key by key, once the old text is deleted, and the result.
const struct Row {
    const char* name;
    CKeyPadFactory::KeyPadType type;
    const char* keys; // separated by blanks
    const char* entered;
} rows[] = {
    // clang-format off
    {"general", CKeyPadFactory::SKP_GENERAL, "Shift h e y SPACE Symbol q", "Hey !"},
    {"hex",     CKeyPadFactory::SKP_HEX,     "1 F - A",                    "1FA"},
    {"binary",  CKeyPadFactory::SKP_BINARY,  "1 0 2 1",                    "101"},
    {"decimal", CKeyPadFactory::SKP_DECIMAL, "4 2 +/-",                    "-42"},
    {"float",   CKeyPadFactory::SKP_FLOAT,   "3 . 5",                      "3.5"},
    // clang-format on
};

} // namespace

class tst_gallery_entry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void typesOnEveryKeypad_data();
    void typesOnEveryKeypad();
    void rangeIsEnforced();
    void backspaceAndDelete();
    void escapeKeepsTheEntry();
    void keyboardTypesIntoTheKeypad();
    void keyboardTypesIntoAFieldWithoutKeypad();

private:
    bool openKeypad(GalleryWindow* window, const KeyMap& map, const QRect& field, int row);
    QString fieldDiffers(const GalleryWindow& window, const QRect& field, const QString& text);
};

void tst_gallery_entry::initTestCase()
{
    QVERIFY(CWidgetStyle::initialize(latin(CWIDGET_SOURCE_DIR "/style/widget-style.xml")));
}

/// Touches a field and waits for the keypad.
bool tst_gallery_entry::openKeypad(GalleryWindow* window, const KeyMap& map, const QRect& field,
                                   int row)
{
    window->click(field.translated(0, row * rowPitch).center());
    return map.waitUntilShown(*window);
}

/// What the panel's field shows instead of \a text; empty when it shows the text.
QString tst_gallery_entry::fieldDiffers(const GalleryWindow& window, const QRect& field,
                                        const QString& text)
{
    CLineEdit edit;
    edit.setText(text);
    edit.setFixedWidth(field.width());
    edit.setAttribute(Qt::WA_DontShowOnScreen);
    edit.show();
    edit.clearFocus();
    QImage expected(window.grab().size(), QImage::Format_RGB32);
    expected.fill(Qt::black);
    QPainter painter(&expected);
    painter.drawImage(field.topLeft(), testing::render(&edit));
    painter.end();
    // Where the text stands, and behind the cursor at its end.
    const int width = testcompat::textWidth(edit.fontMetrics(), text);
    const QRect textRect(field.left() + 1, field.top() + 1, width, field.height() - 2);
    const QRect emptyRect = textRect.translated(width + cursorSpace, 0);
    const QString difference = window.waitFor(expected, textRect);
    return difference.isEmpty() ? window.waitFor(expected, emptyRect) : difference;
}

void tst_gallery_entry::typesOnEveryKeypad_data()
{
    QTest::addColumn<int>("row");
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(rows[i].name) << static_cast<int>(i);
}

void tst_gallery_entry::typesOnEveryKeypad()
{
    QFETCH(int, row);
    const KeyMap map(rows[row].type);
    GalleryWindow window(QStringList() << latin("--log") << latin("--screen") << latin("entry"));
    QVERIFY(window.waitUntilShown());
    QVERIFY(openKeypad(&window, map, fieldRect, row));
    window.click(map.key(Key_DelAll));
    const QStringList keys = latin(rows[row].keys).split(QLatin1Char(' '));
    for (int i = 0; i < keys.size(); ++i) {
        const QPoint key = map.key(keys.at(i));
        QVERIFY2(!key.isNull(), qPrintable(keys.at(i)));
        window.click(key);
    }
    window.click(map.key(Key_Apply));
    const QString entered = latin(rows[row].entered);
    QCOMPARE(window.nextLine(), latin("Entered: ") + entered);
    QCOMPARE(fieldDiffers(window, fieldRect.translated(0, row * rowPitch), entered), QString());
}

void tst_gallery_entry::rangeIsEnforced()
{
    const KeyMap map(CKeyPadFactory::SKP_DECIMAL);
    GalleryWindow window(QStringList() << latin("--log") << latin("--screen") << latin("entry"));
    QVERIFY(window.waitUntilShown());
    QVERIFY(openKeypad(&window, map, rangedRect, 3));
    window.click(map.key(Key_DelAll));
    window.click(map.key(latin("9")));
    window.click(map.key(latin("8")));
    window.click(map.key(latin("7")));
    window.click(map.key(Key_Apply)); // the bound takes its place
    window.separateClicks();
    window.click(map.key(Key_Apply));
    QCOMPARE(window.nextLine(), latin("Entered: 120"));
}

void tst_gallery_entry::backspaceAndDelete()
{
    const KeyMap map(CKeyPadFactory::SKP_HEX);
    GalleryWindow window(QStringList() << latin("--log") << latin("--screen") << latin("entry"));
    QVERIFY(window.waitUntilShown());
    QVERIFY(openKeypad(&window, map, fieldRect, 1));
    window.click(map.key(Qt::Key_Backspace));
    window.click(map.key(Qt::Key_Delete)); // nothing is behind the cursor
    window.click(map.key(Key_Apply));
    QCOMPARE(window.nextLine(), latin("Entered: C0FFE"));
}

void tst_gallery_entry::escapeKeepsTheEntry()
{
    const KeyMap map(CKeyPadFactory::SKP_GENERAL);
    GalleryWindow window(QStringList() << latin("--log") << latin("--screen") << latin("entry"));
    QVERIFY(window.waitUntilShown());
    QVERIFY(openKeypad(&window, map, fieldRect, 0));
    window.click(map.key(latin("x")));
    testing::xdotool(latin("key Escape"));
    QCOMPARE(window.nextLine(), latin("Entered: Line 4, fillerx"));
}

void tst_gallery_entry::keyboardTypesIntoTheKeypad()
{
    const KeyMap map(CKeyPadFactory::SKP_DECIMAL);
    GalleryWindow window(QStringList() << latin("--log") << latin("--screen") << latin("entry"));
    QVERIFY(window.waitUntilShown());
    QVERIFY(openKeypad(&window, map, fieldRect, 3));
    window.click(map.key(Key_DelAll));
    testing::xdotool(latin("type --delay 40 12x34")); // the letter is taken out again
    QTest::qWait(200);
    window.click(map.key(Key_Apply));
    QCOMPARE(window.nextLine(), latin("Entered: 1234"));
}

void tst_gallery_entry::keyboardTypesIntoAFieldWithoutKeypad()
{
    GalleryWindow window(QStringList() << latin("--log") << latin("--screen") << latin("entry"));
    QVERIFY(window.waitUntilShown());
    window.click(keyboardOnlyRect.center());
    testing::xdotool(latin("key --delay 60 ctrl+a o k"));
    QCOMPARE(window.nextLine(), latin("Entered: o"));
    QCOMPARE(window.nextLine(), latin("Entered: ok"));
}

CWIDGET_DESKTOP_TEST_MAIN(tst_gallery_entry)

#include "tst_gallery_entry.moc"
