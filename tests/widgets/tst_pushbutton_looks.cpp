#include "support/rows.h"
#include "support/signaltools.h"
#include "support/testing.h"

#include "widgets/pushbutton.h"

#include <QSignalSpy>

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

} // namespace

class tst_pushbutton_looks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

void tst_pushbutton_looks::settersStoreAndRepaint()
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

void tst_pushbutton_looks::extraAttributesDoNotRepaint()
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

void tst_pushbutton_looks::unknownAttributesAreIgnored()
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

void tst_pushbutton_looks::statusBringsUpItsLook()
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
        const testing::InRow inRow(i);
        button.updateStatus(rows[i].state);
        QCOMPARE(colorOf(button.getBackground()), QColor(rows[i].picture));
        QCOMPARE(button.getTextColor(), QColor(rows[i].text));
        QVERIFY(!button.isSelected());
    }
}

void tst_pushbutton_looks::unknownStatusOnlyRepaints()
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

void tst_pushbutton_looks::missingAttributesLeaveTheLook()
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

void tst_pushbutton_looks::attributesAreReplaced()
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

void tst_pushbutton_looks::badColorNameIsAnInvalidColorAndSilent()
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

void tst_pushbutton_looks::pressAndRelease()
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

void tst_pushbutton_looks::releaseOutside()
{
    CPushButton button;
    giveLooks(&button);
    QSignalSpy clicks(&button, SIGNAL(clicked(bool)));
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(500, 500));
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::green));
    QCOMPARE(clicks.count(), 0);
}

void tst_pushbutton_looks::disabledButtonKeepsItsLook()
{
    CPushButton button;
    giveLooks(&button);
    button.setEnabled(false);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::white));
    QCOMPARE(button.getTextColor(), QColor(Qt::black));
}

void tst_pushbutton_looks::disabledWhilePressed()
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

void tst_pushbutton_looks::disabledByItsOwnSlot_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QColor>("look");
    QTest::newRow("pressed") << QByteArray(SIGNAL(pressed())) << QColor(Qt::white); // too early
    QTest::newRow("released") << QByteArray(SIGNAL(released())) << QColor(Qt::green);
    QTest::newRow("clicked") << QByteArray(SIGNAL(clicked())) << QColor(Qt::green);
}

void tst_pushbutton_looks::disabledByItsOwnSlot()
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

void tst_pushbutton_looks::selectedAndDisabledByItsOwnSlot()
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

void tst_pushbutton_looks::disabledWithItsParentWhilePressed()
{
    QWidget parent;
    CPushButton* button = new CPushButton(&parent);
    giveLooks(button);
    QTest::mousePress(button, Qt::LeftButton);
    QCOMPARE(colorOf(button->getBackground()), QColor(Qt::red));
    parent.setEnabled(false);
    QCOMPARE(colorOf(button->getBackground()), QColor(Qt::green));
}

void tst_pushbutton_looks::disablingLeavesOtherLooks()
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

void tst_pushbutton_looks::clickLeavesASelectedButtonReleased()
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

void tst_pushbutton_looks::setSelectedWithoutPicture()
{
    CPushButton button;
    button.setBackground(plain(Qt::white));
    button.setExtraAttr(CPushButton::SelectedTextColor, QVariant(QColor(Qt::blue)));
    button.setSelected(true);
    QVERIFY(button.isSelected());
    QCOMPARE(colorOf(button.getBackground()), QColor(Qt::white));
    QCOMPARE(button.getTextColor(), QColor(Qt::blue));
}

QTEST_MAIN(tst_pushbutton_looks)
#include "tst_pushbutton_looks.moc"
