#include "parm/parmlabel.h"
#include "support/parmtesting.h"
#include "support/rows.h"

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
    {200, Proportion1To1, 100, 100}, {201, Proportion1To1, 100, 100},
    {300, Proportion1To2, 100, 200}, {301, Proportion1To2, 100, 200},
    {302, Proportion1To2, 100, 201}, {300, Proportion2To1, 200, 100},
    {301, Proportion2To1, 200, 100}, {302, Proportion2To1, 201, 100},
    {400, Proportion1To3, 100, 300}, {403, Proportion1To3, 100, 302},
    {400, Proportion3To1, 300, 100}, {403, Proportion3To1, 302, 100},
    {500, Proportion1To4, 100, 400}, {504, Proportion1To4, 100, 403},
    {500, Proportion4To1, 400, 100}, {504, Proportion4To1, 403, 100},
    {600, Proportion1To5, 100, 500}, {605, Proportion1To5, 100, 504},
    {600, Proportion5To1, 500, 100}, {605, Proportion5To1, 504, 100},
    {  0, Proportion1To1,   0,   0}, {  1, Proportion1To1,   0,   0},
    {  5, Proportion5To1,   4,   0}, { 13, Proportion1To4,   2,  10},
    {16777214, Proportion1To5, 2796202, 13981011},
};
// clang-format on

LabelLook valueLook(const QString& text)
{
    LabelLook look;
    look.text = text;
    look.background = Qt::white;
    look.textColor = Qt::blue;
    look.borderWidth = 1;
    look.borderColor = QColor(0xD4, 0xD4, 0xD4);
    return look;
}

// A field with its parts, laid out, and how they are to look.
struct Fixture {
    CParmLabel field;
    CLabel* const name;
    CLabel* const value;
    LabelLook nameIs;
    LabelLook valueIs;

    Fixture()
        : field(QLatin1String("Speed"), QLatin1String("1200 rpm")),
          name(label(&field, 0)),
          value(label(&field, 1)),
          nameIs(nameLook(QLatin1String("Speed"))),
          valueIs(valueLook(QLatin1String("1200 rpm")))
    {
        field.setWidth(240, Proportion1To1);
    }

    // What differs from how the parts are to look.
    QString fault()
    {
        const QString inName = testing::difference(testing::render(name), picture(nameIs, name));
        const QString inValue =
            testing::difference(testing::render(value), picture(valueIs, value));
        return inName.isEmpty() ? inValue : QLatin1String("name: ") + inName;
    }
};

Style entryOf(Style::Field field, int size)
{
    Style entry;
    entry.field = field;
    entry.font = testing::testFont(size);
    return entry;
}

} // namespace

class tst_parmlabel : public QObject
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
    void theWidthAloneKeepsTheParts();
    void heights();
    void theFontIsTheNamesOnly();
    void theWrapModeIsTheValuesOnly();
    void backgroundColors();
    void textColors();
    void borders();
    void alignments();
    void stylesOfTheFile_data();
    void stylesOfTheFile();
    void entriesCountInTheirOrder();
    void aStyleWithoutColors();
    void autoStyleGatesTheStyle();
    void theOwnBackgroundIsReachable();
};

void tst_parmlabel::parts()
{
    QWidget parent;
    CParmLabel field(QLatin1String("Speed"), QLatin1String("1200 rpm"), &parent);
    QCOMPARE(field.parentWidget(), &parent);
    QCOMPARE(layoutFault(&field, 0), QString());
    QCOMPARE(field.findChildren<CLabel*>().count(), 2);
    QCOMPARE(field.layout()->itemAt(0)->widget(), static_cast<QWidget*>(label(&field, 0)));
    QCOMPARE(field.layout()->itemAt(1)->widget(), static_cast<QWidget*>(label(&field, 1)));
    field.setWidth(300, Proportion1To2);
    testing::render(&field);
    QCOMPARE(label(&field, 0)->geometry(), QRect(0, 0, 100, 28));
    QCOMPARE(label(&field, 1)->geometry(), QRect(100, 0, 200, 28));
}

void tst_parmlabel::looksWithoutAStyle()
{
    Fixture fixture;
    QCOMPARE(fixture.name->getBorderWidth(), 0);
    QCOMPARE(fixture.value->getBorderWidth(), 1);
    CWIDGET_COMPARE_LOOKS(fixture);
}

void tst_parmlabel::texts()
{
    Fixture fixture;
    QCOMPARE(fixture.field.text(), QString::fromLatin1("1200 rpm"));
    fixture.field.setName(QLatin1String("Torque"));
    QCOMPARE(fixture.name->text(), QString::fromLatin1("Torque"));
    QCOMPARE(fixture.field.text(), QString::fromLatin1("1200 rpm"));
    fixture.field.setText(QLatin1String("17 Nm"));
    QCOMPARE(fixture.field.text(), QString::fromLatin1("17 Nm"));
    QCOMPARE(fixture.value->text(), QString::fromLatin1("17 Nm"));
    QCOMPARE(fixture.name->text(), QString::fromLatin1("Torque"));
}

void tst_parmlabel::setTextIsASlot()
{
    Fixture fixture;
    QVERIFY(QMetaObject::invokeMethod(&fixture.field, "setText",
                                      Q_ARG(QString, QString::fromLatin1("900 rpm"))));
    QCOMPARE(fixture.field.text(), QString::fromLatin1("900 rpm"));
    const QMetaObject* const meta = fixture.field.metaObject();
    QCOMPARE(meta->methodCount() - meta->methodOffset(), 1);
}

void tst_parmlabel::everySplit_data()
{
    testing::addRows(splits);
}

void tst_parmlabel::everySplit()
{
    QFETCH(int, row);
    const SplitRow& split = splits[row];
    Fixture fixture;
    fixture.field.setWidth(split.width, static_cast<Proportion>(split.proportion));
    QCOMPARE(fixture.field.minimumWidth(), split.width);
    QCOMPARE(fixture.field.maximumWidth(), split.width);
    QCOMPARE(fixture.name->minimumWidth(), split.name);
    QCOMPARE(fixture.name->maximumWidth(), split.name);
    QCOMPARE(fixture.value->minimumWidth(), split.value);
    QCOMPARE(fixture.value->maximumWidth(), split.value);
}

void tst_parmlabel::anUnknownProportionFixesTheFieldOnly()
{
    const int unknown[] = {9, 10, -1, 1000};
    for (size_t i = 0; i < sizeof unknown / sizeof unknown[0]; ++i) {
        const testing::InRow inRow(i);
        Fixture fixture;
        fixture.field.setWidth(360, static_cast<Proportion>(unknown[i]));
        QCOMPARE(fixture.field.minimumWidth(), 360);
        QCOMPARE(fixture.name->minimumWidth(), 120);
        QCOMPARE(fixture.value->minimumWidth(), 120);
    }
}

void tst_parmlabel::theWidthAloneKeepsTheParts()
{
    Fixture fixture;
    static_cast<CWidget&>(fixture.field).setWidth(360);
    QCOMPARE(fixture.field.minimumWidth(), 360);
    QCOMPARE(fixture.name->minimumWidth(), 120);
}

void tst_parmlabel::heights()
{
    Fixture fixture;
    static_cast<CWidget&>(fixture.field).setHeight(44);
    QCOMPARE(fixture.field.minimumHeight(), 44);
    QCOMPARE(fixture.field.maximumHeight(), 44);
    QCOMPARE(fixture.name->minimumHeight(), 44);
    QCOMPARE(fixture.name->maximumHeight(), 44);
    QCOMPARE(fixture.value->maximumHeight(), 44);
    fixture.field.setHeight(-1);
    QCOMPARE(fixture.field.maximumHeight(), 44);
    QCOMPARE(fixture.name->maximumHeight(), 44);
    QCOMPARE(fixture.value->maximumHeight(), 44);
    fixture.field.setHeight(0);
    QCOMPARE(fixture.field.maximumHeight(), 0);
    QCOMPARE(fixture.name->maximumHeight(), 0);
}

void tst_parmlabel::theFontIsTheNamesOnly()
{
    Fixture fixture;
    fixture.field.setFont(testing::testFont(17));
    fixture.nameIs.font = testing::testFont(17);
    CWIDGET_COMPARE_LOOKS(fixture);
}

void tst_parmlabel::theWrapModeIsTheValuesOnly()
{
    Fixture fixture;
    const QString text = QLatin1String("A text of many words, too long for a single line");
    fixture.field.setName(text);
    fixture.field.setText(text);
    fixture.field.setWrapMode(CLabel::WordWrap);
    fixture.nameIs.text = text;
    fixture.valueIs.text = text;
    fixture.valueIs.wrapMode = CLabel::WordWrap;
    CWIDGET_COMPARE_LOOKS(fixture);
    fixture.field.setWrapMode(CLabel::CharWrap);
    fixture.valueIs.wrapMode = CLabel::CharWrap;
    CWIDGET_COMPARE_LOOKS(fixture);
}

namespace
{

// The flags, and whether name and value are meant.
const struct FlagRow {
    int flag;
    bool name;
    bool value;
} flags[] = {
    {FieldName, true, false}, {FieldValue, false, true}, {FieldAll, true, true},
    {3, true, false},         {-1, true, false},
};

const size_t flagCount = sizeof flags / sizeof flags[0];

FieldFlag flagOf(size_t row)
{
    return static_cast<FieldFlag>(flags[row].flag);
}

} // namespace

void tst_parmlabel::backgroundColors()
{
    for (size_t i = 0; i < flagCount; ++i) {
        Fixture fixture;
        fixture.field.setBackgroundColor(Qt::yellow, flagOf(i));
        if (flags[i].name)
            fixture.nameIs.background = Qt::yellow;
        if (flags[i].value)
            fixture.valueIs.background = Qt::yellow;
        CWIDGET_COMPARE_LOOKS(fixture);
    }
}

void tst_parmlabel::textColors()
{
    for (size_t i = 0; i < flagCount; ++i) {
        Fixture fixture;
        fixture.field.setTextColor(Qt::red, flagOf(i));
        if (flags[i].name)
            fixture.nameIs.textColor = Qt::red;
        if (flags[i].value)
            fixture.valueIs.textColor = Qt::red;
        CWIDGET_COMPARE_LOOKS(fixture);
    }
}

void tst_parmlabel::borders()
{
    for (size_t i = 0; i < flagCount; ++i) {
        Fixture fixture;
        fixture.field.setBorderVisible(true, flagOf(i));
        fixture.nameIs.borderWidth = flags[i].name ? 1 : 0;
        CWIDGET_COMPARE_LOOKS(fixture);
        fixture.field.setBorderVisible(false, flagOf(i));
        fixture.nameIs.borderWidth = 0;
        fixture.valueIs.borderWidth = flags[i].value ? 0 : 1;
        CWIDGET_COMPARE_LOOKS(fixture);
    }
}

void tst_parmlabel::alignments()
{
    for (size_t i = 0; i < flagCount; ++i) {
        Fixture fixture;
        fixture.field.setAlignment(Qt::AlignRight | Qt::AlignTop, flagOf(i));
        if (flags[i].name)
            fixture.nameIs.alignment = Qt::AlignRight | Qt::AlignTop;
        if (flags[i].value)
            fixture.valueIs.alignment = Qt::AlignRight | Qt::AlignTop;
        CWIDGET_COMPARE_LOOKS(fixture);
    }
}

void tst_parmlabel::stylesOfTheFile_data()
{
    QTest::addColumn<int>("entries");
    for (int entries = 0; entries < EveryCombination; ++entries)
        QTest::newRow(QByteArray::number(entries).constData()) << entries;
}

void tst_parmlabel::stylesOfTheFile()
{
    QFETCH(int, entries);
    const testing::StyleFile file("CParmLabel", parmtesting::fieldsOf(entries));
    Fixture fixture;
    if (entries & NameEntry)
        styleByName(&fixture.nameIs);
    if (entries & ValueEntry)
        fixture.valueIs.font = entryFont(ValueSize, true);
    if (entries & AllEntry) {
        styleByAll(&fixture.nameIs);
        styleByAll(&fixture.valueIs);
    }
    CWIDGET_COMPARE_LOOKS(fixture);
}

void tst_parmlabel::entriesCountInTheirOrder()
{
    Fixture fixture;
    WidgetStyle style;
    style.styles << entryOf(Style::FieldAll, 20) << entryOf(Style::FieldName, 18);
    fixture.field.setWidgetStyle(style);
    QCOMPARE(fixture.name->font().pixelSize(), 18);
    QCOMPARE(fixture.value->font().pixelSize(), 20);
    style.styles << entryOf(Style::FieldValue, 17);
    fixture.field.setWidgetStyle(style);
    QCOMPARE(fixture.name->font().pixelSize(), 18);
    QCOMPARE(fixture.value->font().pixelSize(), 17);
}

void tst_parmlabel::aStyleWithoutColors()
{
    Fixture fixture;
    fixture.field.setTextColor(Qt::red, FieldAll);
    fixture.field.setWidgetStyle(testing::styleOf(Style::FieldAll, testing::testFont(15)));
    QVERIFY(!fixture.name->getBackgroundColor().isValid());
    QVERIFY(!fixture.value->getBackgroundColor().isValid());
    fixture.nameIs.font = fixture.valueIs.font = testing::testFont(15);
    fixture.nameIs.background = fixture.valueIs.background = QColor();
    fixture.nameIs.textColor = fixture.valueIs.textColor = QColor();
    CWIDGET_COMPARE_LOOKS(fixture);
}

void tst_parmlabel::autoStyleGatesTheStyle()
{
    Fixture fixture;
    fixture.field.setAutoStyleEnabled(false);
    fixture.field.setWidgetStyle(testing::styleOf(Style::FieldAll, testing::testFont(15)));
    CWIDGET_COMPARE_LOOKS(fixture);
    fixture.field.setAutoStyleEnabled(true);
    fixture.field.setWidgetStyle(testing::styleOf(Style::FieldAll, testing::testFont(15)));
    QCOMPARE(fixture.name->font().pixelSize(), 15);
}

void tst_parmlabel::theOwnBackgroundIsReachable()
{
    Fixture fixture;
    fixture.field.setBackgroundColor(Qt::cyan);
    QCOMPARE(fixture.field.getBackgroundColor(), QColor(Qt::cyan));
    CWIDGET_COMPARE_LOOKS(fixture);
}

QTEST_MAIN(tst_parmlabel)
#include "tst_parmlabel.moc"
