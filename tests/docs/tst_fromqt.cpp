#include "support/testing.h"

#include <CCheckBox>
#include <CComboBox>
#include <CDialog>
#include <CGraphicsView>
#include <CKeyPadEdit>
#include <CKeyPadFactory>
#include <CLabel>
#include <CLineEdit>
#include <CPageBar>
#include <CPageListWidget>
#include <CPageListWidgetItem>
#include <CPageListWidgetItemArea>
#include <CPageWidget>
#include <CParmComboBox>
#include <CProgressBar>
#include <CPushButton>
#include <CSoftKeyPad>
#include <CTopTitleArea>
#include <KQWidgetStack>
#include <QAbstractItemView>
#include <QIntValidator>
#include <QPainter>
#include <QTimer>

// Each function is a row of docs/from-qt.md, and rows() says which.

namespace
{

const struct Row {
    const char* section;
    const char* what;
    const char* test;
} rows[] = {
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
    {"CComboBox", "`addItems`", "comboAddItems"},
    {"CComboBox", "`addItems` with the same texts", "comboAddSameItems"},
    {"CComboBox", "`addItem`", "comboAddItem"},
    {"CComboBox", "`currentIndex`", "comboCurrentIndex"},
    {"CComboBox", "index out of range", "comboIndexOutOfRange"},
    {"CComboBox", "popup", "comboPopup"},
    {"CComboBox", "`currentIndexChanged`", "comboIndexChanged"},
    {"CProgressBar", "base class", "progressBase"},
    {"CProgressBar", "value out of range", "progressValue"},
    {"CProgressBar", "negative minimum", "progressMinimum"},
    {"CProgressBar", "minimum above maximum", "progressSwapped"},
    {"CProgressBar", "`setProgressColor`, `setGradientEabled`", "progressRepaints"},
    {"CProgressBar", "size", "progressSize"},
    {"CPageWidget", "signal of a change", "pagesSignal"},
    {"CPageWidget", "index out of range", "pagesIndexOutOfRange"},
    {"CPageWidget", "hidden and shown again", "pagesShownAgain"},
    {"CPageListWidget", "`addItem`", "listAddItem"},
    {"CPageListWidget", "`clear`", "listClear"},
    {"CPageListWidget", "press on one row, release on another", "listTwoRows"},
    {"CPageListWidget", "base class", "listIsPopup"},
    {"CDialog and CSoftKeyPad", "`CDialog::visible`", "dialogVisible"},
    {"CDialog and CSoftKeyPad", "`CSoftKeyPad` rejected", "keypadRejected"},
    {"CDialog and CSoftKeyPad", "`CSoftKeyPad::setText`", "keypadSetText"},
    {"CGraphicsView", "background", "viewBackground"},
    {"CGraphicsView", "negative border width", "viewBorderWidth"},
    {"CWidget", "`setSize`, `setWidth`, `setHeight`", "widgetSize"},
    {"CWidget", "`setTransparency` out of 0 to 255", "widgetTransparency"},
    {"CWidget", "`setAutoManagment`", "widgetAutoManagment"},
    {"CWidget", "`type`", "widgetType"},
    // clang-format on
};

QStringList texts(const char* commaSeparated)
{
    return QString::fromLatin1(commaSeparated).split(QLatin1Char(','));
}

/// The rows of the page's tables, as section and first cell.
QStringList documentedRows()
{
    QStringList all;
    QString section;
    const QStringList lines =
        QString::fromUtf8(testing::contentOf(QLatin1String(CWIDGET_SOURCE_DIR "/docs/from-qt.md")))
            .split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i);
        if (line.startsWith(QLatin1String("## ")))
            section = line.mid(3).section(QLatin1Char(','), 0, 0);
        const QString cell = line.section(QLatin1Char('|'), 1, 1).trimmed();
        if (line.startsWith(QLatin1String("| ")) && cell != QLatin1String("What"))
            all.append(section + QLatin1String(": ") + cell);
    }
    return all;
}

/// Closes the keypad that a touch is about to open, after entering \a text.
class KeypadCloser : public QObject
{
    Q_OBJECT

public:
    explicit KeypadCloser(const QString& text = QString(), bool accept = false)
        : m_text(text), m_accept(accept), m_closed(0)
    {
        QTimer::singleShot(0, this, SLOT(close()));
    }

    int closed() const
    {
        return m_closed;
    }

private Q_SLOTS:
    void close()
    {
        CSoftKeyPad* const keypad = qobject_cast<CSoftKeyPad*>(QApplication::activeModalWidget());
        if (!keypad)
            return;
        ++m_closed;
        if (!m_text.isEmpty())
            keypad->findChild<CKeyPadEdit*>()->setPlainText(m_text);
        keypad->done(m_accept ? QDialog::Accepted : QDialog::Rejected);
    }

private:
    QString m_text;
    bool m_accept;
    int m_closed;
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

    void comboAddItems();
    void comboAddSameItems();
    void comboAddItem();
    void comboCurrentIndex();
    void comboIndexOutOfRange();
    void comboPopup();
    void comboIndexChanged();

    void progressBase();
    void progressValue();
    void progressMinimum();
    void progressSwapped();
    void progressRepaints();
    void progressSize();

    void pagesSignal();
    void pagesIndexOutOfRange();
    void pagesShownAgain();

    void listAddItem();
    void listClear();
    void listTwoRows();
    void listIsPopup();

    void dialogVisible();
    void keypadRejected();
    void keypadSetText();

    void viewBackground();
    void viewBorderWidth();

    void widgetSize();
    void widgetTransparency();
    void widgetAutoManagment();
    void widgetType();
};

void tst_fromqt::everyRowIsTested()
{
    QStringList tested;
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
        tested.append(QLatin1String(rows[i].section) + QLatin1String(": ") +
                      QLatin1String(rows[i].what));
        const QByteArray slot = QByteArray(rows[i].test) + "()";
        QVERIFY2(metaObject()->indexOfSlot(slot.constData()) >= 0, rows[i].test);
    }
    QCOMPARE(documentedRows(), tested);
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

void tst_fromqt::comboAddItems()
{
    CComboBox combo;
    combo.addItems(texts("a,b,c"));
    combo.addItems(texts("x,y"));
    QCOMPARE(combo.items(), texts("x,y"));
    QCOMPARE(combo.count(), 2);
}

void tst_fromqt::comboAddSameItems()
{
    CComboBox combo;
    combo.addItems(texts("a,b,c"));
    combo.setCurrentIndex(2);
    combo.addItems(texts("a,b,c"));
    QCOMPARE(combo.count(), 3);
    QCOMPARE(combo.currentIndex(), 2);
}

void tst_fromqt::comboAddItem()
{
    CComboBox combo;
    combo.addItems(texts("a,b"));
    static_cast<QComboBox*>(&combo)->addItem(QLatin1String("c"));
    QCOMPARE(combo.count(), 3);
    QCOMPARE(combo.items(), texts("a,b"));
    QCOMPARE(combo.findChild<CPageListWidget*>()->visibleItems(), texts("a,b"));
}

void tst_fromqt::comboCurrentIndex()
{
    CComboBox combo;
    combo.addItems(texts("a,b,c,d"));
    combo.setVisibleItems(texts("c,d"), 3);
    QCOMPARE(combo.currentIndex(), 3);
    QCOMPARE(static_cast<QComboBox*>(&combo)->currentIndex(), 1);
}

void tst_fromqt::comboIndexOutOfRange()
{
    CComboBox combo;
    combo.addItems(texts("a,b,c"));
    combo.setCurrentIndex(2);
    combo.setCurrentIndex(-1);
    QCOMPARE(combo.currentIndex(), 0);
    combo.setCurrentIndex(2);
    combo.setCurrentIndex(3);
    QCOMPARE(combo.currentIndex(), 0);
}

void tst_fromqt::comboPopup()
{
    CComboBox combo;
    combo.addItems(texts("a,b,c"));
    combo.show();
    QVERIFY(testcompat::waitForWindow(&combo));
    combo.showPopup();
    QVERIFY(combo.findChild<CPageListWidget*>()->isVisible());
    QVERIFY(!combo.view()->isVisible());
    combo.hidePopup();
    QVERIFY(!combo.findChild<CPageListWidget*>()->isVisible());
}

void tst_fromqt::comboIndexChanged()
{
    CComboBox combo;
    combo.addItems(texts("a,b,c,d"));
    combo.setVisibleItems(texts("c,d"), 2);
    QSignalSpy rowChanges(&combo, SIGNAL(currentIndexChanged(int)));
    QSignalSpy activated(&combo, SIGNAL(currentItemActivated(int)));
    combo.changeCurrentItem(3); // as a touch on its row does
    QCOMPARE(rowChanges.last().at(0).toInt(), 1);
    QCOMPARE(activated.last().at(0).toInt(), 3);
}

void tst_fromqt::progressBase()
{
    CProgressBar bar;
    QVERIFY(!bar.inherits("QProgressBar"));
    QCOMPARE(bar.metaObject()->superClass()->className(), "QWidget");
    for (int i = bar.metaObject()->methodOffset(); i < bar.metaObject()->methodCount(); ++i)
        QVERIFY(bar.metaObject()->method(i).methodType() != QMetaMethod::Signal);
}

void tst_fromqt::progressValue()
{
    CProgressBar bar;
    bar.setValue(50);
    bar.setValue(200);
    QCOMPARE(bar.value(), 100);
    bar.setValue(-1);
    QCOMPARE(bar.value(), 0);
}

void tst_fromqt::progressMinimum()
{
    CProgressBar bar;
    bar.setRange(-5, 50);
    QCOMPARE(bar.minimum(), 0);
    QCOMPARE(bar.maximum(), 50);
}

void tst_fromqt::progressSwapped()
{
    CProgressBar bar;
    bar.setRange(80, 20);
    QCOMPARE(bar.minimum(), 20);
    QCOMPARE(bar.maximum(), 80);
}

void tst_fromqt::progressRepaints()
{
    CProgressBar bar;
    bar.show();
    QVERIFY(testcompat::waitForWindow(&bar));
    QVERIFY(!testing::repaints(&bar, [&bar]() { bar.setProgressColor(Qt::blue); }));
    QVERIFY(!testing::repaints(&bar, [&bar]() { bar.setGradientEabled(false); }));
    QVERIFY(testing::repaints(&bar, [&bar]() { bar.setValue(50); }));
}

void tst_fromqt::progressSize()
{
    CProgressBar bar;
    QCOMPARE(bar.minimumSize(), QSize(300, 50));
    QCOMPARE(bar.maximumSize(), QSize(300, 50));
}

namespace
{

/// Notes which page stood while the signal came.
class PageWitness : public QObject
{
    Q_OBJECT

public:
    explicit PageWitness(CPageWidget* pages) : m_pages(pages)
    {
        connect(pages, SIGNAL(currentPageChanged(int)), this, SLOT(note(int)));
    }

    QList<int> told;
    QList<int> shown;

private Q_SLOTS:
    void note(int index)
    {
        told.append(index);
        shown.append(m_pages->currentIndex());
    }

private:
    CPageWidget* m_pages;
};

} // namespace

void tst_fromqt::pagesSignal()
{
    CPageWidget pages;
    pages.addPage(new QWidget);
    pages.addPage(new QWidget);
    PageWitness witness(&pages);
    pages.setCurrentPage(1);
    pages.setCurrentPage(1);
    QCOMPARE(witness.told, QList<int>() << 1 << 1);
    QCOMPARE(witness.shown, QList<int>() << 0 << 1);
}

void tst_fromqt::pagesIndexOutOfRange()
{
    CPageWidget pages;
    for (int i = 0; i < 3; ++i)
        pages.addPage(new QWidget);
    pages.setCurrentPage(1);
    pages.setCurrentPage(9);
    QCOMPARE(pages.currentIndex(), 1);
    QCOMPARE(pages.findChild<CPageBar*>()->currentIndex(), 0);
    pages.setCurrentPage(-1);
    QCOMPARE(pages.currentIndex(), 1);
    QCOMPARE(pages.findChild<CPageBar*>()->currentIndex(), 2);
}

void tst_fromqt::pagesShownAgain()
{
    CPageWidget pages;
    QWidget* page[3];
    for (int i = 0; i < 3; ++i) {
        page[i] = new QWidget;
        pages.addPage(page[i]);
    }
    pages.hidePage(2);
    pages.showPage(2);
    QVERIFY(pages.widget(0) == page[0]);
    QVERIFY(pages.widget(1) == page[2]);
    QVERIFY(pages.widget(2) == page[1]);
}

void tst_fromqt::listAddItem()
{
    CPageListWidget list;
    list.addItems(texts("a,b"));
    QCOMPARE(list.findChildren<CPageListWidgetItem*>().size(), 2);
    list.addItem(QLatin1String("c"));
    QCOMPARE(list.findChildren<CPageListWidgetItem*>().size(), 5);
    QCOMPARE(list.visibleItems(), texts("a,b,c"));
}

void tst_fromqt::listClear()
{
    CPageListWidget list;
    list.addItems(texts("a,b"));
    list.clear();
    QCOMPARE(list.findChildren<CPageListWidgetItem*>().size(), 0);
    QCOMPARE(list.visibleItems(), texts("a,b"));
}

void tst_fromqt::listTwoRows()
{
    CPageListWidget list;
    list.addItems(texts("a,b,c"));
    list.show(0);
    QVERIFY(testcompat::waitForWindow(&list));
    QCoreApplication::processEvents();
    QSignalSpy chosen(&list, SIGNAL(currentItemChanged(int)));
    const QList<CPageListWidgetItem*> items = list.findChildren<CPageListWidgetItem*>();
    CPageListWidgetItemArea* const area = list.findChild<CPageListWidgetItemArea*>();
    QTest::mousePress(area, Qt::LeftButton, Qt::NoModifier, items.at(1)->geometry().center());
    QTest::mouseRelease(area, Qt::LeftButton, Qt::NoModifier, items.at(2)->geometry().center());
    QCOMPARE(chosen.count(), 0);
    QTest::mousePress(area, Qt::LeftButton, Qt::NoModifier, items.at(1)->geometry().center());
    QTest::mouseRelease(area, Qt::LeftButton, Qt::NoModifier, items.at(1)->geometry().center());
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.at(0).at(0).toInt(), 1);
}

void tst_fromqt::listIsPopup()
{
    QWidget parent;
    CPageListWidget list(&parent);
    QVERIFY(list.isWindow());
    QCOMPARE(static_cast<int>(list.windowType()), static_cast<int>(Qt::Popup));
}

void tst_fromqt::dialogVisible()
{
    CDialog dialog;
    QSignalSpy visible(&dialog, SIGNAL(visible(bool)));
    dialog.show();
    QVERIFY(testcompat::waitForWindow(&dialog));
    dialog.hide();
    QCOMPARE(visible.count(), 0);
}

void tst_fromqt::keypadRejected()
{
    KeypadCloser closer(QLatin1String("99"), false);
    const QString result = CKeyPadFactory::accessKeyPad(QLatin1String("Title"), QLatin1String("22"),
                                                        CKeyPadFactory::SKP_DECIMAL, 5, 30);
    QCOMPARE(closer.closed(), 1);
    QCOMPARE(result, QString::fromLatin1("99"));
}

void tst_fromqt::keypadSetText()
{
    CSoftKeyPad keypad(CKeyPadFactory::SKP_DECIMAL);
    keypad.setText(QLatin1String("Title"), QLatin1String("3"));
    keypad.setText(QLatin1String("Title"), QLatin1String("5"));
    QCOMPARE(keypad.getInput(), QString::fromLatin1("35"));
}

void tst_fromqt::viewBackground()
{
    CGraphicsView view;
    view.setFrameShape(QFrame::NoFrame);
    view.setSize(60, 40);
    view.setBackgroundColor(Qt::yellow);
    view.setBorderWidth(0);
    view.show();
    QVERIFY(testcompat::waitForWindow(&view));
    QCOMPARE(QColor(testing::render(&view).pixel(30, 20)), QColor(Qt::yellow));
    QGraphicsScene scene;
    scene.addRect(QRectF(-100, -100, 200, 200), QPen(Qt::NoPen), QBrush(Qt::blue));
    view.setScene(&scene);
    QCOMPARE(QColor(testing::render(&view).pixel(30, 20)), QColor(Qt::blue));
}

void tst_fromqt::viewBorderWidth()
{
    CGraphicsView view;
    view.setBorderWidth(-3);
    QCOMPARE(view.getBorderWidth(), -3);
    CDialog dialog;
    dialog.setBorderWidth(-3);
    QCOMPARE(dialog.getBorderWidth(), 0);
    CWidget widget;
    widget.setBorderWidth(-3);
    QCOMPARE(widget.getBorderWidth(), 0);
}

void tst_fromqt::widgetSize()
{
    CWidget widget;
    widget.setSize(100, 40);
    QCOMPARE(widget.minimumSize(), QSize(100, 40));
    QCOMPARE(widget.maximumSize(), QSize(100, 40));
    widget.setWidth(50);
    widget.setHeight(20);
    QCOMPARE(widget.maximumSize(), QSize(50, 20));
}

void tst_fromqt::widgetTransparency()
{
    CWidget widget;
    widget.setBackgroundColor(Qt::red);
    widget.setTransparency(100);
    widget.setTransparency(256);
    widget.setTransparency(-1);
    QCOMPARE(widget.getBackgroundColor().alpha(), 100);
}

void tst_fromqt::widgetAutoManagment()
{
    CWidget first;
    CWidget second;
    first.setAutoManagment(true);
    second.setAutoManagment(true);
    first.show();
    second.show();
    QVERIFY(!first.isVisible());
    QVERIFY(second.isVisible());
    KQWidgetStack::instance()->popAll();
}

void tst_fromqt::widgetType()
{
    QCOMPARE(CWidget().type(), 65635u);
    QCOMPARE(CLabel().type(), 65635u);
    QCOMPARE(CPageWidget().type(), 65635u);
    QCOMPARE(CPageListWidget().type(), 65635u);
    QCOMPARE(CTopTitleArea().type(), 65635u);
    QCOMPARE(CParmComboBox(QString(), QStringList(), QString()).type(), 65635u);
}

QTEST_MAIN(tst_fromqt)
#include "tst_fromqt.moc"
