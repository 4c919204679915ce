#include "keypad/softkeypad.h"
#include "parm/parmlineedit.h"
#include "support/parmtesting.h"
#include "support/rows.h"
#include "widgets/lineedit.h"
#include "widgets/toptitlearea.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QTimer>

using namespace parmtesting;

namespace
{

// The widths of name and value.
struct SplitRow {
    int width;
    int proportion;
    int name;
    int value;
};

// clang-format off
const SplitRow splits[] = {
    {200, Proportion1To1, 101, 100}, {201, Proportion1To1, 101, 100},
    {301, Proportion1To2, 100, 200}, {301, Proportion2To1, 200, 100},
    {403, Proportion1To3, 100, 302}, {403, Proportion3To1, 302, 100},
    {504, Proportion1To4, 100, 403}, {504, Proportion4To1, 403, 100},
    {605, Proportion1To5, 100, 504}, {605, Proportion5To1, 504, 100},
    {  0, Proportion1To1,   1,   0}, {  0, Proportion1To2,   0,   0},
};
// clang-format on

// A field with its parts, and how the name is to look.
struct Fixture {
    CParmLineEdit field;
    CLabel* const name;
    CLineEdit* const edit;
    LabelLook nameIs;

    Fixture()
        : field(QLatin1String("Speed"), QLatin1String("1200")),
          name(label(&field)),
          edit(field.findChild<CLineEdit*>()),
          nameIs(nameLook(QLatin1String("Speed")))
    {
        field.setWidth(240, Proportion1To1);
    }

    QString fault()
    {
        return testing::difference(testing::render(name), picture(nameIs, name));
    }
};

// Answers the keypad that opens: notes its title, then closes it.
class KeyPadUser : public QObject
{
    Q_OBJECT

public:
    KeyPadUser() : m_padCount(0)
    {
        connect(&m_timer, SIGNAL(timeout()), this, SLOT(look()));
        m_timer.start(1);
    }

    int padCount() const
    {
        return m_padCount;
    }

    QString title() const
    {
        return m_title;
    }

private Q_SLOTS:
    void look()
    {
        CSoftKeyPad* const pad = qobject_cast<CSoftKeyPad*>(QApplication::activeModalWidget());
        if (!pad)
            return;
        ++m_padCount;
        m_title = pad->findChild<CTopTitleArea*>()->title();
        pad->changedkey(QString(), Key_DelAll);
        pad->changedkey(QLatin1String("77"), 0);
        pad->close();
    }

private:
    QTimer m_timer;
    int m_padCount;
    QString m_title;
};

} // namespace

class tst_parmlineedit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parts();
    void looksWithoutAStyle();
    void texts();
    void setTextIsASlot();
    void everySplit_data();
    void everySplit();
    void anUnknownProportionFixesTheFieldOnly();
    void resizingSplitsAgain();
    void resizingWithAnUnknownProportionSplitsNothing();
    void aLayoutsWidthIsSplit();
    void showingDoesNotGrow();
    void backgroundColors();
    void textColors();
    void stylesOfTheFile_data();
    void stylesOfTheFile();
    void entriesForAllAreIgnored();
    void autoStyleGatesTheStyle();
    void typingIsForwarded();
    void settingATextIsForwardedAsAChange();
    void theKeyPadHasTheNameAsTitle();
    void theKeyPadsTextIsForwarded();
    void theKeyPadCanBeSwitchedOff();
    void readOnlyAndEnabled();
};

void tst_parmlineedit::parts()
{
    QWidget parent;
    CParmLineEdit field(QLatin1String("Speed"), QLatin1String("1200"), &parent);
    QCOMPARE(field.parentWidget(), &parent);
    QCOMPARE(layoutFault(&field, 0), QString());
    QCOMPARE(field.findChildren<CLabel*>().count(), 1);
    QCOMPARE(field.findChildren<CLineEdit*>().count(), 1);
    QCOMPARE(field.layout()->itemAt(0)->widget(), static_cast<QWidget*>(label(&field)));
    field.setWidth(300, Proportion1To2);
    testing::render(&field);
    QCOMPARE(label(&field)->geometry(), QRect(0, 0, 100, 28));
    QCOMPARE(field.findChild<CLineEdit*>()->geometry(), QRect(100, 0, 200, 28));
}

void tst_parmlineedit::looksWithoutAStyle()
{
    Fixture fixture;
    QCOMPARE(fixture.name->getBorderWidth(), 0);
    QCOMPARE(fixture.name->getBorderColor(), QColor(Qt::black));
    CWIDGET_COMPARE_LOOKS(fixture);
}

void tst_parmlineedit::texts()
{
    Fixture fixture;
    QCOMPARE(fixture.field.text(), QString::fromLatin1("1200"));
    QCOMPARE(fixture.edit->text(), QString::fromLatin1("1200"));
    fixture.field.setName(QLatin1String("Torque"));
    QCOMPARE(fixture.name->text(), QString::fromLatin1("Torque"));
    QCOMPARE(fixture.field.text(), QString::fromLatin1("1200"));
    fixture.field.setText(QLatin1String("17"));
    QCOMPARE(fixture.field.text(), QString::fromLatin1("17"));
    QCOMPARE(fixture.name->text(), QString::fromLatin1("Torque"));
}

void tst_parmlineedit::setTextIsASlot()
{
    Fixture fixture;
    QVERIFY(QMetaObject::invokeMethod(&fixture.field, "setText",
                                      Q_ARG(QString, QString::fromLatin1("900"))));
    QCOMPARE(fixture.field.text(), QString::fromLatin1("900"));
    const QMetaObject* const meta = fixture.field.metaObject();
    QCOMPARE(meta->methodCount() - meta->methodOffset(), 4);
}

void tst_parmlineedit::everySplit_data()
{
    testing::addRows(splits);
}

void tst_parmlineedit::everySplit()
{
    QFETCH(int, row);
    const SplitRow& split = splits[row];
    Fixture fixture;
    fixture.field.setWidth(split.width, static_cast<Proportion>(split.proportion));
    QCOMPARE(fixture.field.minimumWidth(), split.width);
    QCOMPARE(fixture.field.maximumWidth(), split.width);
    QCOMPARE(fixture.name->minimumWidth(), split.name);
    QCOMPARE(fixture.name->maximumWidth(), split.name);
    QCOMPARE(fixture.edit->minimumWidth(), split.value);
    QCOMPARE(fixture.edit->maximumWidth(), split.value);
}

void tst_parmlineedit::anUnknownProportionFixesTheFieldOnly()
{
    const int unknown[] = {9, -1, 1000};
    for (size_t i = 0; i < sizeof unknown / sizeof unknown[0]; ++i) {
        const testing::InRow inRow(i);
        Fixture fixture;
        fixture.field.setWidth(360, static_cast<Proportion>(unknown[i]));
        QCOMPARE(fixture.field.minimumWidth(), 360);
        QCOMPARE(fixture.name->maximumWidth(), 121);
        QCOMPARE(fixture.edit->maximumWidth(), 120);
    }
}

void tst_parmlineedit::resizingSplitsAgain()
{
    Fixture fixture;
    fixture.field.setWidth(300, Proportion1To3);
    fixture.field.show();
    QVERIFY(testcompat::waitForWindow(&fixture.field));
    fixture.field.setFixedWidth(400);
    QCOMPARE(fixture.name->width(), 100);
    QCOMPARE(fixture.edit->width(), 300);
    fixture.field.setMinimumWidth(0);
    fixture.field.setMaximumWidth(1000);
    fixture.field.resize(200, 30);
    QCOMPARE(fixture.name->maximumWidth(), 50);
    QCOMPARE(fixture.edit->maximumWidth(), 150);
    QCOMPARE(fixture.field.maximumWidth(), 200);
}

void tst_parmlineedit::resizingWithAnUnknownProportionSplitsNothing()
{
    Fixture fixture;
    fixture.field.setWidth(300, static_cast<Proportion>(9));
    fixture.field.show();
    QVERIFY(testcompat::waitForWindow(&fixture.field));
    fixture.field.setFixedWidth(400);
    QCOMPARE(fixture.name->maximumWidth(), 121);
    QCOMPARE(fixture.edit->maximumWidth(), 120);
}

void tst_parmlineedit::aLayoutsWidthIsSplit()
{
    QWidget page;
    QHBoxLayout* const layout = new QHBoxLayout(&page);
    layout->setContentsMargins(0, 0, 0, 0);
    CParmLineEdit* const field = new CParmLineEdit(QLatin1String("Speed"), QString(), &page);
    layout->addWidget(field);
    page.resize(500, 40);
    page.show();
    QVERIFY(testcompat::waitForWindow(&page));
    QCOMPARE(field->width(), 500);
    QCOMPARE(label(field)->maximumWidth(), 251);
    QCOMPARE(field->findChild<CLineEdit*>()->maximumWidth(), 250);
}

void tst_parmlineedit::showingDoesNotGrow()
{
    Fixture fixture;
    fixture.field.show();
    QVERIFY(testcompat::waitForWindow(&fixture.field));
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    QCOMPARE(fixture.field.width(), 240);
    QCOMPARE(fixture.name->width(), 121);
    QCOMPARE(fixture.edit->width(), 120);
}

void tst_parmlineedit::backgroundColors()
{
    const int flags[] = {FieldName, FieldAll, 3, -1};
    for (size_t i = 0; i < sizeof flags / sizeof flags[0]; ++i) {
        const testing::InRow inRow(i);
        Fixture fixture;
        const QImage before = testing::render(fixture.edit);
        fixture.field.setBackgroundColor(Qt::red, FieldValue);
        CWIDGET_COMPARE_LOOKS(fixture);
        fixture.field.setBackgroundColor(Qt::yellow, static_cast<FieldFlag>(flags[i]));
        fixture.nameIs.background = Qt::yellow;
        CWIDGET_COMPARE_LOOKS(fixture);
        CWIDGET_COMPARE_IMAGES(testing::render(fixture.edit), before);
    }
}

void tst_parmlineedit::textColors()
{
    const int flags[] = {FieldName, FieldAll, 3, -1};
    for (size_t i = 0; i < sizeof flags / sizeof flags[0]; ++i) {
        const testing::InRow inRow(i);
        Fixture fixture;
        const QImage before = testing::render(fixture.edit);
        fixture.field.setTextColor(Qt::red, FieldValue);
        CWIDGET_COMPARE_LOOKS(fixture);
        fixture.field.setTextColor(Qt::yellow, static_cast<FieldFlag>(flags[i]));
        fixture.nameIs.textColor = Qt::yellow;
        CWIDGET_COMPARE_LOOKS(fixture);
        CWIDGET_COMPARE_IMAGES(testing::render(fixture.edit), before);
    }
}

void tst_parmlineedit::stylesOfTheFile_data()
{
    QTest::addColumn<int>("entries");
    for (int entries = 0; entries < EveryCombination; ++entries)
        QTest::newRow(QByteArray::number(entries).constData()) << entries;
}

void tst_parmlineedit::stylesOfTheFile()
{
    QFETCH(int, entries);
    const QFont plain = Fixture().edit->font();
    const testing::StyleFile file("CParmLineEdit", parmtesting::fieldsOf(entries));
    Fixture fixture;
    if (entries & NameEntry)
        styleByName(&fixture.nameIs);
    CWIDGET_COMPARE_LOOKS(fixture);
    const QFont font = entries & ValueEntry ? entryFont(ValueSize, true) : plain;
    QCOMPARE(fixture.edit->font().pixelSize(), font.pixelSize());
    QCOMPARE(fixture.edit->font().bold(), font.bold());
    QCOMPARE(fixture.edit->styleSheet(), Fixture().edit->styleSheet());
}

void tst_parmlineedit::entriesForAllAreIgnored()
{
    Fixture fixture;
    const QFont plain = fixture.edit->font();
    fixture.field.setWidgetStyle(testing::styleOf(Style::FieldAll, testing::testFont(15)));
    CWIDGET_COMPARE_LOOKS(fixture);
    QCOMPARE(fixture.edit->font().toString(), plain.toString());
}

void tst_parmlineedit::autoStyleGatesTheStyle()
{
    Fixture fixture;
    fixture.field.setAutoStyleEnabled(false);
    fixture.field.setWidgetStyle(testing::styleOf(Style::FieldName, testing::testFont(15)));
    CWIDGET_COMPARE_LOOKS(fixture);
    fixture.field.setAutoStyleEnabled(true);
    fixture.field.setWidgetStyle(testing::styleOf(Style::FieldName, testing::testFont(15)));
    QCOMPARE(fixture.name->font().pixelSize(), 15);
}

void tst_parmlineedit::typingIsForwarded()
{
    Fixture fixture;
    fixture.field.show();
    QVERIFY(testcompat::waitForWindow(&fixture.field));
    QSignalSpy changed(&fixture.field, SIGNAL(textChanged(QString)));
    QSignalSpy edited(&fixture.field, SIGNAL(textEdited(QString)));
    QSignalSpy finished(&fixture.field, SIGNAL(editingFinished()));
    fixture.edit->end(false);
    QTest::keyClicks(fixture.edit, QLatin1String("59"));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(edited.count(), 2);
    QCOMPARE(changed.at(0).at(0).toString(), QString::fromLatin1("12005"));
    QCOMPARE(edited.at(1).at(0).toString(), QString::fromLatin1("120059"));
    QCOMPARE(finished.count(), 0);
    QTest::keyClick(fixture.edit, Qt::Key_Return);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(edited.count(), 2);
}

void tst_parmlineedit::settingATextIsForwardedAsAChange()
{
    Fixture fixture;
    QSignalSpy changed(&fixture.field, SIGNAL(textChanged(QString)));
    QSignalSpy edited(&fixture.field, SIGNAL(textEdited(QString)));
    QSignalSpy finished(&fixture.field, SIGNAL(editingFinished()));
    fixture.field.setText(QLatin1String("900"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toString(), QString::fromLatin1("900"));
    fixture.field.setText(QLatin1String("900"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(edited.count(), 0);
    QCOMPARE(finished.count(), 0);
}

void tst_parmlineedit::theKeyPadHasTheNameAsTitle()
{
    Fixture fixture;
    fixture.field.show();
    QVERIFY(testcompat::waitForWindow(&fixture.field));
    KeyPadUser user;
    QTest::mouseClick(fixture.edit, Qt::LeftButton);
    QCOMPARE(user.padCount(), 1);
    QCOMPARE(user.title(), QString::fromLatin1("Speed"));
    fixture.field.setName(QLatin1String("Torque"));
    QTest::mouseClick(fixture.edit, Qt::LeftButton);
    QCOMPARE(user.padCount(), 2);
    QCOMPARE(user.title(), QString::fromLatin1("Torque"));
}

void tst_parmlineedit::theKeyPadsTextIsForwarded()
{
    Fixture fixture;
    fixture.field.setSKPType(CKeyPadFactory::SKP_DECIMAL);
    fixture.field.setRange(0, 100);
    fixture.field.show();
    QVERIFY(testcompat::waitForWindow(&fixture.field));
    QSignalSpy changed(&fixture.field, SIGNAL(textChanged(QString)));
    QSignalSpy edited(&fixture.field, SIGNAL(textEdited(QString)));
    KeyPadUser user;
    QTest::mouseClick(fixture.edit, Qt::LeftButton);
    QCOMPARE(user.padCount(), 1);
    QCOMPARE(fixture.field.text(), QString::fromLatin1("77"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(edited.count(), 1);
    QCOMPARE(edited.at(0).at(0).toString(), QString::fromLatin1("77"));
}

void tst_parmlineedit::theKeyPadCanBeSwitchedOff()
{
    Fixture fixture;
    QVERIFY(fixture.field.isSKPActive());
    fixture.field.setSKPActive(false);
    QVERIFY(!fixture.field.isSKPActive());
    QVERIFY(!fixture.edit->isSKPActive());
    fixture.field.show();
    QVERIFY(testcompat::waitForWindow(&fixture.field));
    KeyPadUser user;
    QTest::mouseClick(fixture.edit, Qt::LeftButton);
    QCOMPARE(user.padCount(), 0);
    fixture.field.setSKPActive(true);
    QTest::mouseClick(fixture.edit, Qt::LeftButton);
    QCOMPARE(user.padCount(), 1);
}

void tst_parmlineedit::readOnlyAndEnabled()
{
    Fixture fixture;
    fixture.field.setReadOnly(true);
    QVERIFY(fixture.edit->isReadOnly());
    fixture.field.setReadOnly(false);
    QVERIFY(!fixture.edit->isReadOnly());
    fixture.field.setEnable(false);
    QVERIFY(!fixture.edit->isEnabled());
    QVERIFY(fixture.name->isEnabled());
    QVERIFY(fixture.field.isEnabled());
    fixture.field.setEnable(true);
    QVERIFY(fixture.edit->isEnabled());
}

QTEST_MAIN(tst_parmlineedit)
#include "tst_parmlineedit.moc"
