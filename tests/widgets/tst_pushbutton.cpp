#include "support/signaltools.h"
#include "support/stylefile.h"
#include "support/testing.h"

#include "widgets/pushbutton.h"

#include <QApplication>
#include <QPointer>
#include <QSignalSpy>

using testing::styleOf;
using testing::testFont;

namespace
{

QPixmap plain(const QColor& color)
{
    QPixmap pixmap(10, 10);
    pixmap.fill(color);
    return pixmap;
}

QColor colorOf(const QPixmap& pixmap)
{
    return pixmap.isNull() ? QColor() : QColor(pixmap.toImage().pixel(5, 5));
}

QImage strip(const char* name, int x)
{
    return QImage(QLatin1String(":/images/") + QLatin1String(name)).copy(x, 0, 120, 40);
}

/// A button whose states all look different: red, green, blue pictures, with texts in light
/// colours.
void giveLooks(CPushButton* button)
{
    button->setBackground(plain(Qt::white));
    button->setExtraAttr(CPushButton::PressedPixmap, plain(Qt::red));
    button->setExtraAttr(CPushButton::ReleasedPixmap, plain(Qt::green));
    button->setExtraAttr(CPushButton::SelectedPixmap, plain(Qt::blue));
    button->setExtraAttr(CPushButton::PressedTextColor, QVariant(QColor(Qt::cyan)));
    button->setExtraAttr(CPushButton::ReleasedTextColor, QLatin1String("#ffff00"));
    button->setExtraAttr(CPushButton::SelectedTextColor, QLatin1String("magenta"));
}

/// Deletes its button when that is pressed or clicked.
class Deleter : public QObject
{
    Q_OBJECT

public:
    explicit Deleter(CPushButton* button) : m_button(button)
    {
    }

public Q_SLOTS:
    void deleteButton()
    {
        delete m_button;
    }

private:
    CPushButton* m_button;
};

} // namespace

class tst_pushbutton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void numbers();
    void initializeReturnsTrue();
    void settersStoreAndRepaint();
    void extraAttributesDoNotRepaint();
    void unknownAttributesAreIgnored();
    void statusBringsUpItsLook();
    void unknownStatusOnlyRepaints();
    void missingAttributesLeaveTheLook();
    void attributesAreReplaced();
    void badColorNameIsAnInvalidColorAndSilent();
    void pressAndRelease();
    void releaseOutside();
    void disabledButtonKeepsItsLook();
    void disabledWhilePressed();
    void disabledByItsOwnSlot_data();
    void disabledByItsOwnSlot();
    void selectedAndDisabledByItsOwnSlot();
    void disabledWithItsParentWhilePressed();
    void disablingLeavesOtherLooks();
    void clickLeavesASelectedButtonReleased();
    void setSelectedWithoutPicture();
    void buttonDeletedByItsOwnSignals();
    void qtsSignals();
    void styles_data();
    void styles();
    void styledButtonKeepsItsPictureWhenSelected();
    void qtStyleCanStillBeSet();
    void fontComesFromTheStyleFile();
    void widgetStyle();
    void widgetStyleIsOffWithoutAutoStyle();
};

void tst_pushbutton::defaults()
{
    CPushButton button;
    QCOMPARE(button.size(), QSize(120, 40));
    QCOMPARE(button.minimumSize(), QSize(120, 40));
    QCOMPARE(button.maximumSize(), QSize(120, 40));
    QVERIFY(button.isFlat());
    QCOMPARE(button.focusPolicy(), Qt::NoFocus);
    QVERIFY(button.autoFillBackground());
    QVERIFY(!button.isSelected());
    QVERIFY(button.getText().isEmpty());
    QCOMPARE(button.getTextColor(), QColor(Qt::black));
    QVERIFY(!button.getBorderColor().isValid());
    QCOMPARE(button.getBackgroundColor(), QColor(99, 94, 128, 255));
    QVERIFY(button.getBackground().isNull());
    QVERIFY(button.isAutoStyleEnabled());
    const QMetaObject& meta = CPushButton::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 0);
}

void tst_pushbutton::numbers()
{
    QCOMPARE(static_cast<int>(CPushButton::Pressed), 0);
    QCOMPARE(static_cast<int>(CPushButton::Released), 1);
    QCOMPARE(static_cast<int>(CPushButton::Selected), 2);
    QCOMPARE(static_cast<int>(CPushButton::PressedPixmap), 1);
    QCOMPARE(static_cast<int>(CPushButton::ReleasedPixmap), 2);
    QCOMPARE(static_cast<int>(CPushButton::SelectedPixmap), 3);
    QCOMPARE(static_cast<int>(CPushButton::PressedTextColor), 4);
    QCOMPARE(static_cast<int>(CPushButton::ReleasedTextColor), 5);
    QCOMPARE(static_cast<int>(CPushButton::SelectedTextColor), 6);
    QCOMPARE(static_cast<int>(CPushButton::DefaultStyle), 0);
    QCOMPARE(static_cast<int>(CPushButton::GreenStyle), 1);
    QCOMPARE(static_cast<int>(CPushButton::OrangeStyle), 2);
    QCOMPARE(static_cast<int>(CPushButton::RedStyle), 3);
    QCOMPARE(static_cast<int>(CPushButton::FixedStyle), 4);
}

void tst_pushbutton::initializeReturnsTrue()
{
    CPushButton button;
    button.setFixedSize(10, 10);
    button.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(button.initialize());
    QCOMPARE(button.size(), QSize(120, 40));
    QCOMPARE(button.focusPolicy(), Qt::NoFocus);
}

void tst_pushbutton::settersStoreAndRepaint()
{
    CPushButton button;
    button.show();
    QVERIFY(testcompat::waitForWindow(&button));
    QVERIFY(testing::repaints(&button, [&] { button.setText(QLatin1String("Start")); }));
    QVERIFY(testing::repaints(&button, [&] { button.setTextSize(0); }));
    QVERIFY(testing::repaints(&button, [&] { button.setTextColor(Qt::red); }));
    QVERIFY(testing::repaints(&button, [&] { button.setBorderColor(Qt::green); }));
    QVERIFY(testing::repaints(&button, [&] { button.setBackgroundColor(Qt::blue); }));
    QVERIFY(testing::repaints(&button, [&] { button.setBackground(plain(Qt::cyan)); }));
    QVERIFY(testing::repaints(&button, [&] { button.setAutoStyleEnabled(false); }));
    QVERIFY(testing::repaints(&button, [&] { button.setSelected(true); }));
    QCOMPARE(button.getText(), QString::fromLatin1("Start"));
    QVERIFY(button.text().isEmpty()); // Qt's own text is not used
    QCOMPARE(button.getTextColor(), QColor(Qt::red));
    QCOMPARE(button.getBorderColor(), QColor(Qt::green));
    QCOMPARE(button.getBackgroundColor(), QColor(Qt::blue));
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::cyan));
    QVERIFY(!button.isAutoStyleEnabled());
}

void tst_pushbutton::extraAttributesDoNotRepaint()
{
    CPushButton button;
    button.show();
    QVERIFY(testcompat::waitForWindow(&button));
    giveLooks(&button);
    QVERIFY(!testing::repaints(&button, [&] {
        button.setExtraAttr(CPushButton::ReleasedPixmap, plain(Qt::black));
        button.setExtraAttr(CPushButton::ReleasedTextColor, QLatin1String("red"));
    }));
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::white));
    QCOMPARE(button.getTextColor(), QColor(Qt::black));
}

void tst_pushbutton::unknownAttributesAreIgnored()
{
    CPushButton button;
    const int unknown[] = {0, 7, -1, 100};
    for (size_t i = 0; i < sizeof unknown / sizeof unknown[0]; ++i)
        button.setExtraAttr(static_cast<CPushButton::ExtraAttr>(unknown[i]), plain(Qt::red));
    for (int state = -1; state < 10; ++state) {
        button.updateStatus(static_cast<CPushButton::ButtonState>(state));
        QVERIFY(button.getBackground().isNull());
        QCOMPARE(button.getTextColor(), QColor(Qt::black));
    }
}

void tst_pushbutton::statusBringsUpItsLook()
{
    CPushButton button;
    giveLooks(&button);
    const struct {
        CPushButton::ButtonState state;
        Qt::GlobalColor picture;
        Qt::GlobalColor text;
    } rows[] = {
        {CPushButton::Pressed, Qt::red, Qt::cyan},
        {CPushButton::Released, Qt::green, Qt::yellow},
        {CPushButton::Selected, Qt::blue, Qt::magenta},
        {CPushButton::Pressed, Qt::red, Qt::cyan},
    };
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
        button.updateStatus(rows[i].state);
        QCOMPARE(colorOf(button.getBackground()), QColor(rows[i].picture));
        QCOMPARE(button.getTextColor(), QColor(rows[i].text));
        QVERIFY(!button.isSelected());
    }
}

void tst_pushbutton::unknownStatusOnlyRepaints()
{
    CPushButton button;
    giveLooks(&button);
    button.show();
    QVERIFY(testcompat::waitForWindow(&button));
    QVERIFY(testing::repaints(
        &button, [&] { button.updateStatus(static_cast<CPushButton::ButtonState>(3)); }));
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::white));
    QCOMPARE(button.getTextColor(), QColor(Qt::black));
}

void tst_pushbutton::missingAttributesLeaveTheLook()
{
    CPushButton button;
    button.setBackground(plain(Qt::white));
    button.setTextColor(Qt::darkRed);
    button.setExtraAttr(CPushButton::PressedPixmap, plain(Qt::red));
    button.setExtraAttr(CPushButton::SelectedTextColor, QVariant(QColor(Qt::blue)));
    button.updateStatus(CPushButton::Pressed);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::red));
    QCOMPARE(button.getTextColor(), QColor(Qt::darkRed));
    button.updateStatus(CPushButton::Released);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::red));
    QCOMPARE(button.getTextColor(), QColor(Qt::darkRed));
    button.updateStatus(CPushButton::Selected);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::red));
    QCOMPARE(button.getTextColor(), QColor(Qt::blue));
}

void tst_pushbutton::attributesAreReplaced()
{
    CPushButton button;
    button.setExtraAttr(CPushButton::PressedPixmap, plain(Qt::red));
    button.setExtraAttr(CPushButton::PressedPixmap, plain(Qt::green));
    button.updateStatus(CPushButton::Pressed);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::green));
    button.setExtraAttr(CPushButton::PressedPixmap, QPixmap());
    button.updateStatus(CPushButton::Pressed);
    QVERIFY(button.getBackground().isNull());
}

void tst_pushbutton::badColorNameIsAnInvalidColorAndSilent()
{
    testing::Messages messages;
    CPushButton button;
    button.setText(QLatin1String("Text"));
    button.setExtraAttr(CPushButton::PressedTextColor, QLatin1String("no colour"));
    button.updateStatus(CPushButton::Pressed);
    QVERIFY(!button.getTextColor().isValid());
    testing::render(&button);
    QCOMPARE(messages.warnings(), QStringList());
    QCOMPARE(messages.debugs(), QStringList());
}

void tst_pushbutton::pressAndRelease()
{
    CPushButton button;
    giveLooks(&button);
    QSignalSpy clicks(&button, SIGNAL(clicked(bool)));
    QTest::mousePress(&button, Qt::LeftButton);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::red));
    QCOMPARE(button.getTextColor(), QColor(Qt::cyan));
    QVERIFY(button.isDown());
    QCOMPARE(clicks.count(), 0);
    QTest::mouseRelease(&button, Qt::LeftButton);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::green));
    QCOMPARE(button.getTextColor(), QColor(Qt::yellow));
    QCOMPARE(clicks.count(), 1);
}

void tst_pushbutton::releaseOutside()
{
    CPushButton button;
    giveLooks(&button);
    QSignalSpy clicks(&button, SIGNAL(clicked(bool)));
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(500, 500));
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::green));
    QCOMPARE(clicks.count(), 0);
}

void tst_pushbutton::disabledButtonKeepsItsLook()
{
    CPushButton button;
    giveLooks(&button);
    button.setEnabled(false);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::white));
    QCOMPARE(button.getTextColor(), QColor(Qt::black));
}

void tst_pushbutton::disabledWhilePressed()
{
    CPushButton button;
    giveLooks(&button);
    QTest::mousePress(&button, Qt::LeftButton);
    button.setEnabled(false);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::green));
    QCOMPARE(button.getTextColor(), QColor(Qt::yellow));
    QTest::mouseRelease(&button, Qt::LeftButton);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::green));
    button.setEnabled(true);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::green));
}

void tst_pushbutton::disabledByItsOwnSlot_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QColor>("look");
    QTest::newRow("pressed") << QByteArray(SIGNAL(pressed())) << QColor(Qt::white); // too early
    QTest::newRow("released") << QByteArray(SIGNAL(released())) << QColor(Qt::green);
    QTest::newRow("clicked") << QByteArray(SIGNAL(clicked())) << QColor(Qt::green);
}

void tst_pushbutton::disabledByItsOwnSlot()
{
    QFETCH(QByteArray, signal);
    QFETCH(QColor, look);
    CPushButton button;
    giveLooks(&button);
    Reaction reaction(&button, signal.constData(), [&button]() { button.setEnabled(false); });
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton);
    QVERIFY(!button.isEnabled());
    QCOMPARE(colorOf(button.getBackground()), look);
}

void tst_pushbutton::selectedAndDisabledByItsOwnSlot()
{
    CPushButton button;
    giveLooks(&button);
    Reaction reaction(&button, SIGNAL(clicked()), [&button]() {
        button.setSelected(true);
        button.setEnabled(false);
    });
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::blue));
}

void tst_pushbutton::disabledWithItsParentWhilePressed()
{
    QWidget parent;
    CPushButton* button = new CPushButton(&parent);
    giveLooks(button);
    QTest::mousePress(button, Qt::LeftButton);
    QCOMPARE(colorOf(button->getBackground()), QColor(Qt::red));
    parent.setEnabled(false);
    QCOMPARE(colorOf(button->getBackground()), QColor(Qt::green));
}

void tst_pushbutton::disablingLeavesOtherLooks()
{
    CPushButton button;
    giveLooks(&button);
    button.setEnabled(false);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::white));
    button.setEnabled(true);
    button.setSelected(true);
    button.setEnabled(false);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::blue));
    QCOMPARE(button.getTextColor(), QColor(Qt::magenta));
    button.setEnabled(true);
    button.updateStatus(CPushButton::Pressed);
    button.setEnabled(true); // no change
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::red));
    button.setEnabled(false);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::green));
    QVERIFY(button.isSelected());
}

void tst_pushbutton::clickLeavesASelectedButtonReleased()
{
    CPushButton button;
    giveLooks(&button);
    button.setSelected(true);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::blue));
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::green));
    QVERIFY(button.isSelected());
    button.setSelected(false);
    QVERIFY(!button.isSelected());
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::green));
}

void tst_pushbutton::setSelectedWithoutPicture()
{
    CPushButton button;
    button.setBackground(plain(Qt::white));
    button.setExtraAttr(CPushButton::SelectedTextColor, QVariant(QColor(Qt::blue)));
    button.setSelected(true);
    QVERIFY(button.isSelected());
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::white));
    QCOMPARE(button.getTextColor(), QColor(Qt::blue));
}

void tst_pushbutton::buttonDeletedByItsOwnSignals()
{
    const char* const signals_[] = {SIGNAL(pressed()), SIGNAL(released()), SIGNAL(clicked())};
    for (size_t i = 0; i < sizeof signals_ / sizeof signals_[0]; ++i) {
        QPointer<CPushButton> button = new CPushButton;
        Deleter deleter(button);
        QVERIFY(connect(button, signals_[i], &deleter, SLOT(deleteButton())));
        QMouseEvent press(QEvent::MouseButtonPress, QPoint(5, 5), QPoint(5, 5), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QMouseEvent release(QEvent::MouseButtonRelease, QPoint(5, 5), QPoint(5, 5), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(button, &press);
        if (button)
            QApplication::sendEvent(button, &release);
        QVERIFY(button.isNull());
    }
}

void tst_pushbutton::qtsSignals()
{
    CPushButton button;
    QSignalSpy pressed(&button, SIGNAL(pressed()));
    QSignalSpy released(&button, SIGNAL(released()));
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    QSignalSpy toggled(&button, SIGNAL(toggled(bool)));
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(released.count(), 1);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(toggled.count(), 0);
}

void tst_pushbutton::styles_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("strip");
    QTest::addColumn<int>("released");
    QTest::addColumn<int>("pressed");
    const struct {
        int style;
        const char* color;
        int released;
        int pressed;
    } rows[] = {
        // clang-format off
        { 0, "GRAY",     0, 120},
        { 1, "GREEN",    0, 120},
        { 2, "ORANGE",   0, 120},
        { 3, "RED",      0, 120},
        { 4, "GRAY",   240, 240},
        { 5, "GRAY",     0, 120},
        {-1, "GRAY",     0, 120},
        // clang-format on
    };
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(qPrintable(QString::number(rows[i].style)))
            << rows[i].style
            << QString::fromLatin1("RCTB_BUTTON%1_3states.png").arg(QLatin1String(rows[i].color))
            << rows[i].released << rows[i].pressed;
}

void tst_pushbutton::styles()
{
    QFETCH(int, style);
    QFETCH(QString, strip);
    QFETCH(int, released);
    QFETCH(int, pressed);
    for (int big = 0; big < 2; ++big) {
        const QByteArray name = (big ? "BIG_" : "") + strip.toLatin1();
        CPushButton button;
        button.setStyle(static_cast<CPushButton::ButtonStyle>(style), !big);
        QCOMPARE(button.getTextColor(), QColor(Qt::white));
        CWIDGET_COMPARE_IMAGES(button.getBackground().toImage(),
                               ::strip(name.constData(), released));
        QTest::mousePress(&button, Qt::LeftButton);
        CWIDGET_COMPARE_IMAGES(button.getBackground().toImage(),
                               ::strip(name.constData(), pressed));
        QTest::mouseRelease(&button, Qt::LeftButton);
        CWIDGET_COMPARE_IMAGES(button.getBackground().toImage(),
                               ::strip(name.constData(), released));
        QCOMPARE(button.getTextColor(), QColor(Qt::white));
    }
}

void tst_pushbutton::styledButtonKeepsItsPictureWhenSelected()
{
    CPushButton button;
    button.setStyle(CPushButton::GreenStyle, true);
    const QImage released = button.getBackground().toImage();
    button.setSelected(true);
    CWIDGET_COMPARE_IMAGES(button.getBackground().toImage(), released);
    QCOMPARE(button.getTextColor(), QColor(Qt::white));
}

void tst_pushbutton::qtStyleCanStillBeSet()
{
    CPushButton button;
    button.setStyle(QApplication::style());
    QVERIFY(button.getBackground().isNull());
}

void tst_pushbutton::fontComesFromTheStyleFile()
{
    const testing::StyleFile file("CPushButton", 23);
    CPushButton button;
    QCOMPARE(button.font().pixelSize(), 23);
    QCOMPARE(button.getTextColor(), QColor(Qt::black));
    QCOMPARE(button.getBackgroundColor(), QColor(99, 94, 128));
}

void tst_pushbutton::widgetStyle()
{
    CPushButton button;
    WidgetStyle style = styleOf(Style::FieldAll, testFont(17));
    style.styles.append(styleOf(Style::FieldAll, testFont(18)).styles);
    button.setWidgetStyle(style);
    QCOMPARE(button.font().pixelSize(), 18);
    button.setWidgetStyle(styleOf(Style::FieldName, testFont(19)));
    button.setWidgetStyle(styleOf(Style::FieldValue, testFont(20)));
    QCOMPARE(button.font().pixelSize(), 18);
}

void tst_pushbutton::widgetStyleIsOffWithoutAutoStyle()
{
    CPushButton button;
    const QFont before = button.font();
    button.setAutoStyleEnabled(false);
    button.setWidgetStyle(styleOf(Style::FieldAll, testFont(17)));
    QCOMPARE(button.font(), before);
}

QTEST_MAIN(tst_pushbutton)
#include "tst_pushbutton.moc"
