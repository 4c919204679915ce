#include "fromqt.h"

#include <CCheckBox>
#include <CKeyPadFactory>
#include <CLabel>
#include <CLineEdit>
#include <CPushButton>
#include <QIntValidator>
#include <QPainter>

// Each function is a row of docs/from-qt.md, and rows says which.

using fromqt::KeypadCloser;
using fromqt::texts;

namespace
{

const fromqt::Row rows[] = {
    // clang-format off
    {"CPushButton", "text through a base pointer", "buttonTextThroughBase"},
    {"CPushButton", "ampersand in the text", "buttonAmpersand"},
    {"CPushButton", "size", "buttonSize"},
    {"CPushButton", "focus", "buttonFocus"},
    {"CPushButton", "`setSelected`", "buttonSelected"},
    {"CPushButton", "a click on a selected button", "buttonClickedWhileSelected"},
    {"CPushButton", "`setExtraAttr`", "buttonExtraAttr"},
    {"CPushButton", "finger lifted outside the button", "buttonReleasedOutside"},
    {"CCheckBox", "when it changes", "checkBoxChangesOnTouch"},
    {"CCheckBox", "`setChecked`", "checkBoxSetChecked"},
    {"CCheckBox", "`setCheckState`", "checkBoxSetCheckState"},
    {"CCheckBox", "`toggled`", "checkBoxToggled"},
    {"CCheckBox", "state through a base pointer", "checkBoxThroughBase"},
    {"CCheckBox", "`clicked(bool)`", "checkBoxClicked"},
    {"CCheckBox", "default colour", "checkBoxColor"},
    {"CLineEdit", "a touch", "lineEditTouch"},
    {"CLineEdit", "read-only", "lineEditReadOnly"},
    {"CLineEdit", "`textEdited`", "lineEditTextEdited"},
    {"CLineEdit", "`editingFinished`, `returnPressed`", "lineEditEditingFinished"},
    {"CLineEdit", "validator", "lineEditValidator"},
    {"CLineEdit", "`setRange` with texts", "lineEditRangeOfTexts"},
    {"CLineEdit", "unknown keypad type", "lineEditUnknownType"},
    {"CLineEdit", "height", "lineEditHeight"},
    {"CLabel", "base class", "labelBase"},
    {"CLabel", "tags in the text", "labelTags"},
    {"CLabel", "`clicked`", "labelClicked"},
    {"CLabel", "`setCornerText`", "labelCornerText"},
    {"CLabel", "text size 0", "labelTextSize"},
    {"CLabel", "height", "labelHeight"},
    // clang-format on
};

/// Presses and lets go in the middle of \a widget.
void touch(QWidget* widget)
{
    QTest::mouseClick(widget, Qt::LeftButton);
}

} // namespace

class tst_fromqt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySectionIsTested();
    void everyRowIsTested();
    void init();

    void buttonTextThroughBase();
    void buttonAmpersand();
    void buttonSize();
    void buttonFocus();
    void buttonSelected();
    void buttonClickedWhileSelected();
    void buttonExtraAttr();
    void buttonReleasedOutside();

    void checkBoxChangesOnTouch();
    void checkBoxSetChecked();
    void checkBoxSetCheckState();
    void checkBoxToggled();
    void checkBoxThroughBase();
    void checkBoxClicked();
    void checkBoxColor();

    void lineEditTouch();
    void lineEditReadOnly();
    void lineEditTextEdited();
    void lineEditEditingFinished();
    void lineEditValidator();
    void lineEditRangeOfTexts();
    void lineEditUnknownType();
    void lineEditHeight();

    void labelBase();
    void labelTags();
    void labelClicked();
    void labelCornerText();
    void labelTextSize();
    void labelHeight();
};

void tst_fromqt::everySectionIsTested()
{
    QCOMPARE(texts(fromqt::controls) + texts(fromqt::containers), fromqt::documentedSections());
}

void tst_fromqt::everyRowIsTested()
{
    QCOMPARE(fromqt::testedRows(rows, this), fromqt::documentedRows(texts(fromqt::controls)));
}

void tst_fromqt::init()
{
    CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceKeyboard, false);
}

void tst_fromqt::buttonTextThroughBase()
{
    CPushButton button;
    button.setText(QLatin1String("Start"));
    QCOMPARE(button.getText(), QString::fromLatin1("Start"));
    QCOMPARE(static_cast<QPushButton*>(&button)->text(), QString());
}

void tst_fromqt::buttonAmpersand()
{
    CPushButton button;
    button.setFont(testing::testFont(14));
    button.setText(QLatin1String("&Start"));
    QVERIFY(button.shortcut().isEmpty());
    QImage expected = testing::canvas(&button);
    QPainter painter(&expected);
    painter.fillRect(button.rect(), button.getBackgroundColor());
    painter.setFont(button.font());
    painter.setPen(button.getTextColor());
    painter.drawText(button.rect(), Qt::AlignCenter, QLatin1String("&Start"));
    painter.end();
    CWIDGET_COMPARE_IMAGES(testing::render(&button), expected);
}

void tst_fromqt::buttonSize()
{
    CPushButton button;
    button.setText(QString(100, QLatin1Char('m')));
    QCOMPARE(button.minimumSize(), QSize(120, 40));
    QCOMPARE(button.maximumSize(), QSize(120, 40));
}

void tst_fromqt::buttonFocus()
{
    CPushButton button;
    QCOMPARE(static_cast<int>(button.focusPolicy()), static_cast<int>(Qt::NoFocus));
}

void tst_fromqt::buttonSelected()
{
    CPushButton button;
    button.setCheckable(true);
    QSignalSpy toggled(&button, SIGNAL(toggled(bool)));
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    button.setSelected(true);
    QVERIFY(button.isSelected());
    QVERIFY(!button.isChecked());
    QCOMPARE(toggled.count(), 0);
    QCOMPARE(clicked.count(), 0);
}

void tst_fromqt::buttonClickedWhileSelected()
{
    CPushButton button;
    button.setExtraAttr(CPushButton::ReleasedTextColor, QVariant(QColor(Qt::red)));
    button.setExtraAttr(CPushButton::SelectedTextColor, QVariant(QColor(Qt::blue)));
    button.setSelected(true);
    QCOMPARE(button.getTextColor(), QColor(Qt::blue));
    touch(&button);
    QCOMPARE(button.getTextColor(), QColor(Qt::red));
    QVERIFY(button.isSelected());
}

void tst_fromqt::buttonExtraAttr()
{
    CPushButton button;
    button.show();
    QVERIFY(testcompat::waitForWindow(&button));
    QVERIFY(!testing::repaints(&button, [&button]() {
        button.setExtraAttr(CPushButton::ReleasedTextColor, QVariant(QColor(Qt::red)));
    }));
    QVERIFY(testing::repaints(&button, [&button]() { button.setTextColor(Qt::red); }));
}

void tst_fromqt::buttonReleasedOutside()
{
    CPushButton button;
    button.setExtraAttr(CPushButton::PressedTextColor, QVariant(QColor(Qt::blue)));
    button.setExtraAttr(CPushButton::ReleasedTextColor, QVariant(QColor(Qt::red)));
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    QTest::mousePress(&button, Qt::LeftButton);
    QCOMPARE(button.getTextColor(), QColor(Qt::blue));
    QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(500, 500));
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(button.getTextColor(), QColor(Qt::red));
}

void tst_fromqt::checkBoxChangesOnTouch()
{
    CCheckBox box(QLatin1String("Sensor"));
    QSignalSpy changes(&box, SIGNAL(stateChanged(int)));
    QTest::mousePress(&box, Qt::LeftButton);
    QVERIFY(box.isChecked());
    QCOMPARE(changes.count(), 1);
    QTest::mouseRelease(&box, Qt::LeftButton);
    QVERIFY(box.isChecked());
    QCOMPARE(changes.count(), 1);
}

void tst_fromqt::checkBoxSetChecked()
{
    CCheckBox box;
    QSignalSpy changes(&box, SIGNAL(stateChanged(int)));
    QSignalSpy toggled(&box, SIGNAL(toggled(bool)));
    box.setChecked(true);
    QVERIFY(box.isChecked());
    QCOMPARE(changes.count() + toggled.count(), 0);
}

void tst_fromqt::checkBoxSetCheckState()
{
    CCheckBox box;
    QSignalSpy changes(&box, SIGNAL(stateChanged(int)));
    box.setCheckState(Qt::Checked);
    box.setCheckState(Qt::Checked);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toInt(), static_cast<int>(Qt::Checked));
}

void tst_fromqt::checkBoxToggled()
{
    CCheckBox box(QLatin1String("Sensor"));
    QSignalSpy toggled(&box, SIGNAL(toggled(bool)));
    touch(&box);
    box.setChecked(false);
    box.setCheckState(Qt::Checked);
    QCOMPARE(toggled.count(), 0);
}

void tst_fromqt::checkBoxThroughBase()
{
    CCheckBox box(QLatin1String("Sensor"));
    touch(&box);
    QVERIFY(box.isChecked());
    QVERIFY(!static_cast<QAbstractButton*>(&box)->isChecked());
}

void tst_fromqt::checkBoxClicked()
{
    CCheckBox box(QLatin1String("Sensor"));
    QSignalSpy clicked(&box, SIGNAL(clicked(bool)));
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(12, 14)); // in its square
    QVERIFY(box.isChecked());
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.at(0).at(0).toBool(), false);
}

void tst_fromqt::checkBoxColor()
{
    CCheckBox box;
    QImage expected = testing::canvas(&box, Qt::white);
    CWIDGET_COMPARE_IMAGES(testing::render(&box, Qt::white), expected);
    box.setForegroundColor(Qt::black);
    QVERIFY(!testing::difference(testing::render(&box, Qt::white), expected).isEmpty());
}

void tst_fromqt::lineEditTouch()
{
    CLineEdit edit;
    KeypadCloser closer(QLatin1String("12"));
    touch(&edit);
    QCOMPARE(closer.closed(), 1);
    QCOMPARE(edit.text(), QString::fromLatin1("12"));
}

void tst_fromqt::lineEditReadOnly()
{
    CLineEdit edit;
    edit.setReadOnly(true);
    KeypadCloser closer(QLatin1String("12"));
    touch(&edit);
    QCOMPARE(closer.closed(), 1);
    QCOMPARE(edit.text(), QString::fromLatin1("12"));
}

void tst_fromqt::lineEditTextEdited()
{
    CLineEdit edit;
    edit.setText(QLatin1String("12"));
    QSignalSpy edited(&edit, SIGNAL(textEdited(QString)));
    KeypadCloser closer;
    touch(&edit);
    QCOMPARE(closer.closed(), 1);
    QCOMPARE(edited.count(), 1);
    QCOMPARE(edited.at(0).at(0).toString(), QString::fromLatin1("12"));
}

void tst_fromqt::lineEditEditingFinished()
{
    CLineEdit edit;
    QSignalSpy finished(&edit, SIGNAL(editingFinished()));
    QSignalSpy returned(&edit, SIGNAL(returnPressed()));
    KeypadCloser closer(QLatin1String("12"), true);
    touch(&edit);
    QCOMPARE(closer.closed(), 1);
    QCOMPARE(finished.count() + returned.count(), 0);
}

void tst_fromqt::lineEditValidator()
{
    CLineEdit edit;
    QIntValidator validator(0, 9);
    edit.setValidator(&validator);
    KeypadCloser closer(QLatin1String("many"));
    touch(&edit);
    QCOMPARE(closer.closed(), 1);
    QCOMPARE(edit.text(), QString::fromLatin1("many"));
}

void tst_fromqt::lineEditRangeOfTexts()
{
    CLineEdit edit;
    edit.setRange(QLatin1String("1"), QLatin1String("9"));
    QVERIFY(edit.isRangeEnabled());
    QCOMPARE(edit.minimum(), 0);
    QCOMPARE(edit.maximum(), 0);
}

void tst_fromqt::lineEditUnknownType()
{
    CLineEdit edit;
    edit.setSKPType(CKeyPadFactory::SKP_HEX);
    edit.setSKPType(static_cast<CKeyPadFactory::KeyPadType>(5));
    QCOMPARE(static_cast<int>(edit.skpType()), static_cast<int>(CKeyPadFactory::SKP_GENERAL));
}

void tst_fromqt::lineEditHeight()
{
    CLineEdit edit;
    edit.setFont(testing::testFont(60));
    QCOMPARE(edit.minimumHeight(), 28);
    QCOMPARE(edit.maximumHeight(), 28);
}

void tst_fromqt::labelBase()
{
    CLabel label;
    QVERIFY(label.inherits("CWidget"));
    QVERIFY(!label.inherits("QFrame"));
}

void tst_fromqt::labelTags()
{
    CLabel label;
    label.setFixedWidth(120);
    label.setFont(testing::testFont(14));
    label.setText(QLatin1String("<b>A</b>"));
    QImage expected = testing::canvas(&label);
    QPainter painter(&expected);
    painter.fillRect(label.rect(), label.getBackgroundColor());
    painter.setFont(label.font());
    painter.setPen(Qt::black);
    painter.drawText(QRect(QPoint(2, 0), QPoint(117, 27)), Qt::AlignLeft | Qt::AlignVCenter,
                     QLatin1String("<b>A</b>"));
    painter.end();
    CWIDGET_COMPARE_IMAGES(testing::render(&label), expected);
}

void tst_fromqt::labelClicked()
{
    CLabel label;
    QSignalSpy clicked(&label, SIGNAL(clicked()));
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton, Qt::NoModifier, QPoint(500, 500));
    QCOMPARE(clicked.count(), 1);
}

void tst_fromqt::labelCornerText()
{
    CLabel label;
    label.show();
    QVERIFY(testcompat::waitForWindow(&label));
    QVERIFY(!testing::repaints(&label, [&label]() { label.setCornerText(QLatin1String("C")); }));
    QVERIFY(testing::repaints(&label, [&label]() { label.setText(QLatin1String("T")); }));
}

void tst_fromqt::labelTextSize()
{
    CLabel label;
    label.setFixedWidth(120);
    label.setFont(testing::testFont(12));
    label.setCornerText(QLatin1String("C"));
    const QImage withoutText = testing::render(&label);
    label.setText(QLatin1String("Text"));
    QVERIFY(!testing::difference(testing::render(&label), withoutText).isEmpty());
    label.setTextSize(0);
    label.setFont(testing::testFont(12));
    CWIDGET_COMPARE_IMAGES(testing::render(&label), withoutText);
}

void tst_fromqt::labelHeight()
{
    CLabel label;
    label.setText(QLatin1String("one\ntwo\nthree"));
    QCOMPARE(label.minimumHeight(), 28);
    QCOMPARE(label.maximumHeight(), 28);
}

QTEST_MAIN(tst_fromqt)
#include "tst_fromqt.moc"
