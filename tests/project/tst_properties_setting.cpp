// What setting a property by its name does: the same as the setter of the class.

#include "pages/combobox.h"
#include "pages/pagebar.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetitem.h"
#include "pages/pagewidget.h"
#include "parm/parmcheckbox.h"
#include "parm/parmcombobox.h"
#include "parm/parmlabel.h"
#include "parm/parmlineedit.h"
#include "support/testing.h"
#include "widgets/checkbox.h"
#include "widgets/clockprogress.h"
#include "widgets/label.h"
#include "widgets/lineedit.h"
#include "widgets/progressbar.h"
#include "widgets/pushbutton.h"

#include <QMetaProperty>
#include <QSignalSpy>

class tst_properties_setting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textOfAPushButtonIsTheOneItShows();
    void buttonStyleIsThatOfSetStyle();
    void noButtonStyleTakesTheLookAway();
    void normalSizeRestyles();
    void checkedIsSilent();
    void settingABoundSwitchesTheRangeOn();
    void boundsOfTheBarsPushEachOther();
    void countOfThePageBar();
    void itemsOfTheListAreReplaced();
    void currentIndexOfTheComboBoxIsItsOwn();
    void entriesInAnotherLanguageKeepTheChoice();
    void currentIndexOfThePageWidget();
    void fontIsSetThroughTheClass();
    void proportionSplitsTheWidth();
    void pagesCanBeAddedByName();
};

void tst_properties_setting::textOfAPushButtonIsTheOneItShows()
{
    CPushButton button;
    QAbstractButton* const base = &button;
    button.setProperty("text", QLatin1String("shown"));
    QCOMPARE(button.getText(), QString::fromLatin1("shown"));
    QCOMPARE(base->text(), QString());
    base->setText(QLatin1String("Qt's"));
    QCOMPARE(button.property("text").toString(), QString::fromLatin1("shown"));
    QCOMPARE(button.QPushButton::text(), QString::fromLatin1("Qt's"));
}

void tst_properties_setting::buttonStyleIsThatOfSetStyle()
{
    CPushButton button;
    CPushButton other;
    button.setStyle(CPushButton::GreenStyle, false);
    QCOMPARE(button.buttonStyle(), CPushButton::GreenStyle);
    QVERIFY(!button.isNormalSize());
    other.setNormalSize(false);
    QCOMPARE(other.buttonStyle(), CPushButton::NoStyle);
    other.setButtonStyle(CPushButton::GreenStyle);
    CWIDGET_COMPARE_IMAGES(testing::render(&other), testing::render(&button));
    button.setStyle(static_cast<CPushButton::ButtonStyle>(17), true);
    QCOMPARE(button.buttonStyle(), CPushButton::DefaultStyle);
}

void tst_properties_setting::noButtonStyleTakesTheLookAway()
{
    CPushButton plain;
    CPushButton button;
    const QImage before = testing::render(&plain);
    button.setButtonStyle(CPushButton::RedStyle);
    QVERIFY(testing::render(&button) != before);
    button.setButtonStyle(CPushButton::NoStyle);
    QCOMPARE(button.buttonStyle(), CPushButton::NoStyle);
    button.updateStatus(CPushButton::Pressed);
    button.updateStatus(CPushButton::Released);
    CWIDGET_COMPARE_IMAGES(testing::render(&button), before);
    QCOMPARE(button.getTextColor(), QColor(Qt::black));
}

void tst_properties_setting::normalSizeRestyles()
{
    CPushButton big;
    CPushButton button;
    big.setStyle(CPushButton::OrangeStyle, false);
    button.setButtonStyle(CPushButton::OrangeStyle);
    button.setNormalSize(false);
    CWIDGET_COMPARE_IMAGES(testing::render(&button), testing::render(&big));
}

void tst_properties_setting::checkedIsSilent()
{
    CCheckBox box;
    QSignalSpy changed(&box, SIGNAL(stateChanged(int)));
    QSignalSpy toggled(&box, SIGNAL(toggled(bool)));
    QVERIFY(box.setProperty("checked", true));
    QCOMPARE(box.checkState(), Qt::Checked);
    QCOMPARE(changed.count() + toggled.count(), 0);
    CParmCheckBox field;
    QSignalSpy fieldChanged(&field, SIGNAL(stateChanged(int)));
    QVERIFY(field.setProperty("checked", true));
    QCOMPARE(field.checkState(), Qt::Checked);
    QCOMPARE(fieldChanged.count(), 0);
}

void tst_properties_setting::settingABoundSwitchesTheRangeOn()
{
    CLineEdit edit;
    edit.setProperty("maximum", 9);
    QVERIFY(edit.isRangeEnabled());
    QCOMPARE(edit.minimum(), 0);
    edit.setProperty("minimum", 3);
    QCOMPARE(edit.maximum(), 9);
    edit.setProperty("rangeEnabled", false);
    QVERIFY(!edit.isRangeEnabled());
    QCOMPARE(edit.minimum(), 3);
    edit.setRange(QLatin1String("1"), QLatin1String("2"));
    QVERIFY(edit.isRangeEnabled());
    QCOMPARE(edit.minimum(), 3);
}

void tst_properties_setting::boundsOfTheBarsPushEachOther()
{
    CProgressBar bar;
    bar.setMinimum(150);
    QCOMPARE(bar.maximum(), 150);
    bar.setMaximum(20);
    QCOMPARE(bar.minimum(), 20);
    bar.setMaximum(-3);
    QCOMPARE(bar.minimum(), 0);
    QCOMPARE(bar.maximum(), 0);
    CClockProgress clock;
    clock.setMinimum(4);
    QCOMPARE(clock.maximum(), 4);
    clock.setMaximum(60);
    clock.setProperty("value", 30);
    QCOMPARE(clock.value(), 30);
    QCOMPARE(clock.minimum(), 4);
    clock.setMaximum(1);
    QCOMPARE(clock.minimum(), 1);
}

void tst_properties_setting::countOfThePageBar()
{
    CPageBar bar;
    QSignalSpy changed(&bar, SIGNAL(pageChanged(int)));
    bar.setCount(4);
    QCOMPARE(bar.currentIndex(), 0);
    QVERIFY(bar.setProperty("currentIndex", 3));
    QCOMPARE(bar.currentIndex(), 3);
    bar.setCount(2);
    QCOMPARE(bar.currentIndex(), 1);
    CPageBar counted;
    counted.addPage();
    counted.addPage();
    counted.setCurrentIndex(1);
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), testing::render(&counted));
    bar.setCount(-1);
    QCOMPARE(bar.count(), 0);
    QCOMPARE(bar.currentIndex(), -1);
    QCOMPARE(changed.count(), 0);
}

void tst_properties_setting::itemsOfTheListAreReplaced()
{
    CPageListWidget list;
    list.setItems(QStringList() << QLatin1String("a") << QLatin1String("b"));
    list.setItems(QStringList() << QLatin1String("c"));
    QCOMPARE(list.visibleItems(), QStringList() << QLatin1String("c"));
    QCOMPARE(list.findChildren<CPageListWidgetItem*>().size(), 1);
}

void tst_properties_setting::currentIndexOfTheComboBoxIsItsOwn()
{
    CComboBox box;
    const QStringList texts = QString::fromLatin1("Off,Auto,Manual").split(QLatin1Char(','));
    QVERIFY(box.setProperty("items", texts));
    QVERIFY(box.setProperty("currentIndex", 2));
    QCOMPARE(box.currentText(), QString::fromLatin1("Manual"));
    QCOMPARE(box.property("currentIndex").toInt(), 2);
    box.setVisibleItems(QStringList() << QLatin1String("Manual"), 2);
    QCOMPARE(box.property("currentIndex").toInt(), 2);
    QCOMPARE(static_cast<QComboBox&>(box).currentIndex(), 0);
    CParmComboBox field;
    QVERIFY(field.setProperty("items", texts));
    QVERIFY(field.setProperty("currentIndex", 1));
    QCOMPARE(field.currentText(), QString::fromLatin1("Auto"));
}

void tst_properties_setting::entriesInAnotherLanguageKeepTheChoice()
{
    const QStringList english = QString::fromLatin1("Off,Auto,Manual").split(QLatin1Char(','));
    const QStringList german = QString::fromLatin1("Aus,Auto,Hand").split(QLatin1Char(','));
    CComboBox box;
    box.setItems(english);
    box.setCurrentIndex(2);
    box.setItems(german);
    QCOMPARE(box.currentIndex(), 2);
    QCOMPARE(box.currentText(), QString::fromLatin1("Hand"));
    box.setItems(german.mid(0, 2));
    QCOMPARE(box.currentIndex(), 0);
    CPageListWidget list;
    list.setItems(english);
    list.setCurrentIndex(1);
    list.setItems(german);
    QCOMPARE(list.currentIndex(), 1);
    CParmComboBox field;
    QVERIFY(field.setProperty("currentIndex", 2)); // as forms do, before the entries
    QCOMPARE(field.currentIndex(), 0);
    field.setItems(english);
    QCOMPARE(field.currentIndex(), 2);
    field.setCurrentIndex(1);
    field.setItems(german);
    QCOMPARE(field.currentIndex(), 1);
    QVERIFY(field.dynamicPropertyNames().isEmpty());
}

void tst_properties_setting::currentIndexOfThePageWidget()
{
    CPageWidget pages;
    pages.addPage(new QWidget);
    pages.addPage(new QWidget);
    QSignalSpy changed(&pages, SIGNAL(currentPageChanged(int)));
    QCOMPARE(pages.property("count").toInt(), 2);
    const QMetaObject* const meta = pages.metaObject();
    QVERIFY(!meta->property(meta->indexOfProperty("count")).isWritable());
    QVERIFY(pages.setProperty("currentIndex", 1));
    QCOMPARE(pages.currentIndex(), 1);
    QCOMPARE(changed.count(), 1);
}

void tst_properties_setting::fontIsSetThroughTheClass()
{
    const QFont font = testing::testFont(17, true);
    CLineEdit edit;
    CComboBox box;
    CParmLabel field;
    QVERIFY(edit.setProperty("font", font));
    QVERIFY(box.setProperty("font", font));
    QVERIFY(field.setProperty("font", font));
    QCOMPARE(edit.font().pixelSize(), 17);
    QCOMPARE(box.findChild<CPageListWidget*>()->font().pixelSize(), 17);
    QCOMPARE(field.findChildren<CLabel*>().at(0)->font().pixelSize(), 17);
    QVERIFY(field.findChildren<CLabel*>().at(1)->font().pixelSize() != 17);
    QCOMPARE(field.property("font").value<QFont>().pixelSize(), 17);
}

void tst_properties_setting::proportionSplitsTheWidth()
{
    CParmLabel label;
    QVERIFY(label.setProperty("fieldWidth", 400));
    QVERIFY(label.setProperty("proportion", QLatin1String("Proportion1To3")));
    QCOMPARE(label.findChildren<CLabel*>().at(0)->maximumWidth(), 100);
    QCOMPARE(label.findChildren<CLabel*>().at(1)->maximumWidth(), 300);
    QVERIFY(label.setProperty("fieldWidth", 200)); // keeps the proportion
    QCOMPARE(label.findChildren<CLabel*>().at(0)->maximumWidth(), 50);
    CParmLineEdit edit;
    QVERIFY(edit.setProperty("proportion", QLatin1String("Proportion1To3")));
    QVERIFY(edit.setProperty("fieldWidth", 400));
    QCOMPARE(edit.findChild<CLineEdit*>()->maximumWidth(), 300);
}

void tst_properties_setting::pagesCanBeAddedByName()
{
    CPageWidget pages;
    QWidget* const page = new QWidget(&pages);
    QVERIFY(QMetaObject::invokeMethod(&pages, "addPage", Q_ARG(QWidget*, page)));
    QCOMPARE(pages.count(), 1);
    QCOMPARE(pages.widget(0), page);
}

QTEST_MAIN(tst_properties_setting)
#include "tst_properties_setting.moc"
