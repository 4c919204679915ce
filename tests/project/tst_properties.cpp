#include "support/rows.h"
#include "support/testing.h"

#include "keypad/genkeypad.h"
#include "keypad/hexkeypad.h"
#include "keypad/keybutton.h"
#include "keypad/keypadedit.h"
#include "keypad/numkeypad.h"
#include "keypad/softkeypad.h"
#include "pages/combobox.h"
#include "pages/pagebar.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetheader.h"
#include "pages/pagelistwidgetitem.h"
#include "pages/pagelistwidgetitemarea.h"
#include "pages/pagewidget.h"
#include "parm/parmcheckbox.h"
#include "parm/parmcombobox.h"
#include "parm/parmlabel.h"
#include "parm/parmlineedit.h"
#include "widgets/checkbox.h"
#include "widgets/clockprogress.h"
#include "widgets/dialog.h"
#include "widgets/graphicsview.h"
#include "widgets/label.h"
#include "widgets/lineedit.h"
#include "widgets/progressbar.h"
#include "widgets/pushbutton.h"
#include "widgets/toptitlearea.h"

#include <QMetaProperty>
#include <QScopedPointer>

namespace
{

/// Made as the code that uic writes makes it: from its parent alone.
template <typename Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

const struct Maker {
    const char* name;
    QWidget* (*make)(QWidget* parent);
} makers[] = {
    // clang-format off
    {"CWidget",                 make<CWidget>},
    {"CDialog",                 make<CDialog>},
    {"CGraphicsView",           make<CGraphicsView>},
    {"CTopTitleArea",           make<CTopTitleArea>},
    {"CPushButton",             make<CPushButton>},
    {"CLabel",                  make<CLabel>},
    {"CCheckBox",               make<CCheckBox>},
    {"CLineEdit",               make<CLineEdit>},
    {"CProgressBar",            make<CProgressBar>},
    {"CClockProgress",          make<CClockProgress>},
    {"CPageBar",                make<CPageBar>},
    {"CPageWidget",             make<CPageWidget>},
    {"CPageListWidgetItem",     make<CPageListWidgetItem>},
    {"CPageListWidgetHeader",   make<CPageListWidgetHeader>},
    {"CPageListWidgetItemArea", make<CPageListWidgetItemArea>},
    {"CPageListWidget",         make<CPageListWidget>},
    {"CComboBox",               make<CComboBox>},
    {"CParmLabel",              make<CParmLabel>},
    {"CParmLineEdit",           make<CParmLineEdit>},
    {"CParmComboBox",           make<CParmComboBox>},
    {"CParmCheckBox",           make<CParmCheckBox>},
    {"CKeyButton",              make<CKeyButton>},
    {"CAbstractKeyPad",         make<CAbstractKeyPad>},
    {"CGenKeyPad",              make<CGenKeyPad>},
    {"CNumKeyPad",              make<CNumKeyPad>},
    {"CHexKeyPad",              make<CHexKeyPad>},
    {"CKeyPadEdit",             make<CKeyPadEdit>},
    {"CSoftKeyPad",             make<CSoftKeyPad>},
    // clang-format on
};

QWidget* makeNamed(const QByteArray& name, QWidget* parent)
{
    for (size_t i = 0; i < sizeof makers / sizeof makers[0]; ++i) {
        if (name == makers[i].name)
            return makers[i].make(parent);
    }
    qFatal("no class %s", name.constData());
    return nullptr;
}

// Every property of a class of its own, its value in a new widget, and another one.
const struct Row {
    const char* owner;
    const char* property;
    const char* initial;
    const char* other;
} rows[] = {
    // clang-format off
    {"CGraphicsView",           "backgroundColor",      "#e0e0ff",              "#102030"},
    {"CGraphicsView",           "borderColor",          "#ffffff",              "#102030"},
    {"CGraphicsView",           "borderWidth",          "0",                    "3"},
    {"CTopTitleArea",           "title",                "",                     "Alarms"},
    {"CPushButton",             "text",                 "",                     "Start"},
    {"CPushButton",             "textSize",             "10",                   "0"},
    {"CPushButton",             "buttonStyle",          "NoStyle",              "RedStyle"},
    {"CPushButton",             "normalSize",           "true",                 "false"},
    {"CPushButton",             "textColor",            "#000000",              "#102030"},
    {"CPushButton",             "backgroundColor",      "#635e80",              "#102030"},
    {"CPushButton",             "background",           "",                     "8x4"},
    {"CPushButton",             "borderColor",          "",                     "#102030"},
    {"CPushButton",             "selected",             "false",                "true"},
    {"CPushButton",             "autoStyleEnabled",     "true",                 "false"},
    {"CLabel",                  "text",                 "",                     "Pressure"},
    {"CLabel",                  "cornerText",           "",                     "bar"},
    {"CLabel",                  "textColor",            "#000000",              "#102030"},
    {"CLabel",                  "textSize",             "9",                    "14"},
    {"CLabel",                  "alignment",            "AlignLeft|AlignVCenter", "AlignRight|AlignTop"},
    {"CLabel",                  "wrapMode",             "NoWrap",               "CharWrap"},
    {"CLabel",                  "backgroundColor",      "#e0e0ff",              "#102030"},
    {"CLabel",                  "background",           "",                     "8x4"},
    {"CLabel",                  "borderColor",          "",                     "#102030"},
    {"CLabel",                  "borderWidth",          "0",                    "2"},
    {"CLabel",                  "autoStyleEnabled",     "true",                 "false"},
    {"CCheckBox",               "checked",              "false",                "true"},
    {"CCheckBox",               "borderVisible",        "false",                "true"},
    {"CCheckBox",               "foregroundColor",      "#ffffff",              "#102030"},
    {"CCheckBox",               "backgroundColor",      "",                     "#102030"},
    {"CCheckBox",               "autoStyleEnabled",     "false",                "true"},
    {"CLineEdit",               "title",                "",                     "Set point"},
    {"CLineEdit",               "keypadType",           "SKP_GENERAL",          "SKP_DECIMAL"},
    {"CLineEdit",               "keypadActive",         "true",                 "false"},
    {"CLineEdit",               "minimum",              "0",                    "-7"},
    {"CLineEdit",               "maximum",              "0",                    "7"},
    {"CLineEdit",               "rangeEnabled",         "false",                "true"},
    {"CLineEdit",               "borderVisible",        "true",                 "false"},
    {"CLineEdit",               "autoStyleEnabled",     "true",                 "false"},
    {"CProgressBar",            "minimum",              "0",                    "50"},
    {"CProgressBar",            "maximum",              "100",                  "200"},
    {"CProgressBar",            "value",                "0",                    "40"},
    {"CProgressBar",            "borderColor",          "#a0a0a4",              "#102030"},
    {"CProgressBar",            "progressColor",        "#a0a0a4",              "#102030"},
    {"CProgressBar",            "gradientEnabled",      "true",                 "false"},
    {"CClockProgress",          "minimum",              "0",                    "5"},
    {"CClockProgress",          "maximum",              "0",                    "60"},
    {"CClockProgress",          "format",               "2",                    "1"},
    {"CClockProgress",          "running",              "false",                "true"},
    {"CPageBar",                "count",                "0",                    "4"},
    {"CPageBar",                "textColor",            "#000000",              "#102030"},
    {"CPageBar",                "backgroundColor",      "",                     "#102030"},
    {"CPageWidget",             "backgroundColor",      "#e0e0ff",              "#102030"},
    {"CPageListWidgetItem",     "text",                 "",                     "Off"},
    {"CPageListWidgetItem",     "index",                "-1",                   "4"},
    {"CPageListWidgetItem",     "selected",             "false",                "true"},
    {"CPageListWidgetHeader",   "title",                "",                     "Mode"},
    {"CPageListWidgetHeader",   "text",                 "",                     "Off"},
    {"CPageListWidgetItemArea", "maxVisibleRows",       "5",                    "3"},
    {"CPageListWidgetItemArea", "currentPage",          "0",                    "2"},
    {"CPageListWidgetItemArea", "currentIndex",         "0",                    "2"},
    {"CPageListWidget",         "title",                "",                     "Mode"},
    {"CPageListWidget",         "text",                 "",                     "Off"},
    {"CPageListWidget",         "items",                "",                     "Off,Auto,Manual"},
    {"CPageListWidget",         "currentIndex",         "0",                    "1"},
    {"CComboBox",               "title",                "",                     "Mode"},
    {"CComboBox",               "items",                "",                     "Off,Auto,Manual"},
    {"CComboBox",               "borderVisible",        "true",                 "false"},
    {"CComboBox",               "autoStyleEnabled",     "true",                 "false"},
    {"CParmLabel",              "name",                 "",                     "Temperature"},
    {"CParmLabel",              "text",                 "",                     "21"},
    {"CParmLabel",              "proportion",           "Proportion1To1",       "Proportion1To3"},
    {"CParmLabel",              "fieldWidth",           "640",                  "301"},
    {"CParmLabel",              "nameTextColor",        "#000000",              "#102030"},
    {"CParmLabel",              "nameBackgroundColor",  "#b0b0b0",              "#102030"},
    {"CParmLabel",              "nameAlignment",        "AlignLeft|AlignVCenter", "AlignHCenter|AlignTop"},
    {"CParmLabel",              "nameBorderVisible",    "false",                "true"},
    {"CParmLabel",              "valueTextColor",       "#0000ff",              "#102030"},
    {"CParmLabel",              "valueBackgroundColor", "#ffffff",              "#102030"},
    {"CParmLabel",              "valueAlignment",       "AlignLeft|AlignVCenter", "AlignRight|AlignVCenter"},
    {"CParmLabel",              "valueBorderVisible",   "true",                 "false"},
    {"CParmLabel",              "wrapMode",             "NoWrap",               "WordWrap"},
    {"CParmLineEdit",           "name",                 "",                     "Set point"},
    {"CParmLineEdit",           "text",                 "",                     "22"},
    {"CParmLineEdit",           "proportion",           "Proportion1To1",       "Proportion4To1"},
    {"CParmLineEdit",           "fieldWidth",           "640",                  "301"},
    {"CParmLineEdit",           "keypadType",           "SKP_GENERAL",          "SKP_HEX"},
    {"CParmLineEdit",           "keypadActive",         "true",                 "false"},
    {"CParmLineEdit",           "minimum",              "0",                    "-7"},
    {"CParmLineEdit",           "maximum",              "0",                    "7"},
    {"CParmLineEdit",           "rangeEnabled",         "false",                "true"},
    {"CParmLineEdit",           "readOnly",             "false",                "true"},
    {"CParmLineEdit",           "valueEnabled",         "true",                 "false"},
    {"CParmLineEdit",           "nameTextColor",        "#000000",              "#102030"},
    {"CParmLineEdit",           "nameBackgroundColor",  "#b0b0b0",              "#102030"},
    {"CParmComboBox",           "name",                 "",                     "Mode"},
    {"CParmComboBox",           "items",                "",                     "Off,Auto,Manual"},
    {"CParmComboBox",           "fieldWidth",           "640",                  "300"},
    {"CParmComboBox",           "nameTextColor",        "#000000",              "#102030"},
    {"CParmComboBox",           "nameBackgroundColor",  "#b0b0b0",              "#102030"},
    {"CParmComboBox",           "nameBorderVisible",    "false",                "true"},
    {"CParmCheckBox",           "name",                 "",                     "Sensor"},
    {"CParmCheckBox",           "text",                 "",                     "attached"},
    {"CParmCheckBox",           "checked",              "false",                "true"},
    {"CParmCheckBox",           "fieldWidth",           "640",                  "300"},
    {"CParmCheckBox",           "borderVisible",        "true",                 "false"},
    {"CKeyButton",              "key",                  "33554431",             "65"},
    {"CKeyButton",              "keyText",              "",                     "a"},
    {"CKeyButton",              "symbol",               "",                     "!"},
    {"CGenKeyPad",              "backgroundColor",      "#000000",              "#102030"},
    {"CSoftKeyPad",             "keypadType",           "SKP_GENERAL",          "SKP_FLOAT"},
    // clang-format on
};

QMetaProperty propertyOf(const QWidget* widget, const char* name)
{
    const int index = widget->metaObject()->indexOfProperty(name);
    return index < 0 ? QMetaProperty() : widget->metaObject()->property(index);
}

QString colorText(const QColor& color)
{
    return color.isValid() ? color.name() : QString();
}

/// A value as the table has it.
QString textOf(const QMetaProperty& property, const QVariant& value)
{
    if (property.isFlagType()) // some flags have two names
        return QString::number(value.toInt());
    if (property.isEnumType())
        return QString::fromLatin1(property.enumerator().valueToKey(value.toInt()));
    if (value.canConvert<QPixmap>()) {
        const QPixmap pixmap = value.value<QPixmap>();
        return pixmap.isNull()
                   ? QString()
                   : QString::fromLatin1("%1x%2").arg(pixmap.width()).arg(pixmap.height());
    }
    if (QByteArray(property.typeName()) == "QColor")
        return colorText(value.value<QColor>());
    if (QByteArray(property.typeName()) == "QStringList")
        return value.toStringList().join(QLatin1String(","));
    return value.toString();
}

/// What the table has, as textOf() writes it.
QString normalized(const QMetaProperty& property, const QString& text)
{
    if (!property.isFlagType())
        return text;
    return QString::number(property.enumerator().keysToValue(text.toLatin1().constData()));
}

/// What the table has, as a value. Enumerations stay texts: the meta-object must know them.
QVariant valueOf(const QMetaProperty& property, const QString& text)
{
    const QByteArray type = property.typeName();
    if (type == "QPixmap") {
        QPixmap pixmap(text.section(QLatin1Char('x'), 0, 0).toInt(),
                       text.section(QLatin1Char('x'), 1).toInt());
        pixmap.fill(Qt::red);
        return pixmap;
    }
    if (type == "QColor")
        return QColor(text);
    if (type == "QStringList")
        return text.split(QLatin1Char(','));
    return text;
}

const char* const enumerationKeys[][2] = {
    {"CPushButton.buttonStyle", "NoStyle,DefaultStyle,GreenStyle,OrangeStyle,RedStyle,FixedStyle"},
    {"CLabel.wrapMode", "NoWrap,WordWrap,CharWrap"},
    {"CParmLabel.wrapMode", "NoWrap,WordWrap,CharWrap"},
    {"CLineEdit.keypadType", "SKP_GENERAL,SKP_HEX,SKP_BINARY,SKP_DECIMAL,SKP_FLOAT"},
    {"CParmLineEdit.keypadType", "SKP_GENERAL,SKP_HEX,SKP_BINARY,SKP_DECIMAL,SKP_FLOAT"},
    {"CSoftKeyPad.keypadType", "SKP_GENERAL,SKP_HEX,SKP_BINARY,SKP_DECIMAL,SKP_FLOAT"},
    {"CParmLabel.proportion",
     "Proportion1To1,Proportion1To2,Proportion2To1,Proportion1To3,Proportion3To1,Proportion1To4,"
     "Proportion4To1,Proportion1To5,Proportion5To1"},
};

} // namespace

class tst_properties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyClassCanBeMadeFromItsParent();
    void widgetDialogAndStyleHaveNone();
    void properties_data();
    void properties();
    void styleSheet_data();
    void styleSheet();
    void everyPropertyIsInTheTable();
    void enumerations_data();
    void enumerations();
    void backgroundOfEveryWidget();

private:
    QScopedPointer<QWidget> m_parent;
};

void tst_properties::init()
{
    m_parent.reset(new QWidget);
}

void tst_properties::everyClassCanBeMadeFromItsParent()
{
    for (size_t i = 0; i < sizeof makers / sizeof makers[0]; ++i) {
        const testing::InRow inRow(i);
        const QWidget* widget = makers[i].make(m_parent.data());
        QCOMPARE(widget->metaObject()->className(), makers[i].name);
        QCOMPARE(widget->parentWidget(), m_parent.data());
    }
}

void tst_properties::widgetDialogAndStyleHaveNone()
{
    const QMetaObject* const metas[] = {&CWidget::staticMetaObject, &CDialog::staticMetaObject,
                                        &CWidgetStyle::staticMetaObject};
    for (size_t i = 0; i < sizeof metas / sizeof metas[0]; ++i)
        QCOMPARE(metas[i]->propertyCount(), metas[i]->propertyOffset());
}

void tst_properties::properties_data()
{
    QTest::addColumn<QByteArray>("owner");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("initial");
    QTest::addColumn<QString>("other");
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow((QByteArray(rows[i].owner) + "." + rows[i].property).constData())
            << QByteArray(rows[i].owner) << QByteArray(rows[i].property)
            << QString::fromLatin1(rows[i].initial) << QString::fromLatin1(rows[i].other);
}

void tst_properties::properties()
{
    QFETCH(QByteArray, owner);
    QFETCH(QByteArray, name);
    QFETCH(QString, initial);
    QFETCH(QString, other);
    QWidget* const widget = makeNamed(owner, m_parent.data());
    widget->resize(640, widget->height());
    const QMetaProperty property = propertyOf(widget, name.constData());
    QVERIFY(property.isReadable());
    QVERIFY(property.isDesignable());
    QVERIFY(property.isStored());
    QVERIFY(property.isWritable());
    QCOMPARE(textOf(property, property.read(widget)), normalized(property, initial));
    QVERIFY(property.write(widget, valueOf(property, other)));
    QCOMPARE(textOf(property, property.read(widget)), normalized(property, other));
    if (initial.isEmpty())
        return;
    QVERIFY(property.write(widget, valueOf(property, initial)));
    QCOMPARE(textOf(property, property.read(widget)), normalized(property, initial));
}

void tst_properties::styleSheet_data()
{
    properties_data();
}

void tst_properties::styleSheet()
{
    QFETCH(QByteArray, owner);
    QFETCH(QByteArray, name);
    QFETCH(QString, other);
    QWidget* const widget = makeNamed(owner, m_parent.data());
    const QMetaProperty property = propertyOf(widget, name.constData());
    const QByteArray type = property.typeName();
    if (type == "QPixmap")
        other = QLatin1String("url(:/images/zoom.png)");
    if (type == "QStringList")
        return; // a style sheet knows no lists of texts
    const bool quoted = type == "QString" || property.isFlagType();
    const QString value = quoted ? QLatin1Char('"') + other + QLatin1Char('"') : other;
    m_parent->setStyleSheet(QString::fromLatin1("%1 { qproperty-%2: %3; }")
                                .arg(QString::fromLatin1(owner), QString::fromLatin1(name), value));
    widget->ensurePolished();
    const QPixmap picture(QLatin1String(":/images/zoom.png"));
    const QString expected =
        type == "QPixmap" ? textOf(property, picture) : normalized(property, other);
    QCOMPARE(textOf(property, property.read(widget)), expected);
}

void tst_properties::everyPropertyIsInTheTable()
{
    // What is the same in all of them is tested for one class, or for all in another test.
    const QByteArray common =
        ",backgroundColor,background,borderColor,borderWidth,autoStyleEnabled,font,";
    const QByteArray apart = ",CClockProgress.value,CPageBar.currentIndex,CPageWidget.count,"
                             "CPageWidget.currentIndex,CComboBox.currentIndex,"
                             "CParmComboBox.currentIndex,";
    QSet<QByteArray> known;
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        known.insert(QByteArray(rows[i].owner) + "." + rows[i].property);
    for (size_t i = 0; i < sizeof makers / sizeof makers[0]; ++i) {
        const QMetaObject* const meta = makers[i].make(m_parent.data())->metaObject();
        for (int j = meta->propertyOffset(); j < meta->propertyCount(); ++j) {
            const QByteArray name = meta->property(j).name();
            const QByteArray full = QByteArray(makers[i].name) + "." + name;
            QVERIFY2(known.contains(full) || common.contains("," + name + ",") ||
                         apart.contains("," + full + ","),
                     full.constData());
        }
    }
}

void tst_properties::enumerations_data()
{
    QTest::addColumn<QByteArray>("owner");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("keys");
    for (size_t i = 0; i < sizeof enumerationKeys / sizeof enumerationKeys[0]; ++i) {
        const QByteArray full = enumerationKeys[i][0];
        const int dot = full.indexOf('.');
        QTest::newRow(full.constData())
            << full.left(dot) << full.mid(dot + 1) << QString::fromLatin1(enumerationKeys[i][1]);
    }
}

void tst_properties::enumerations()
{
    QFETCH(QByteArray, owner);
    QFETCH(QByteArray, name);
    QFETCH(QString, keys);
    QWidget* const widget = makeNamed(owner, m_parent.data());
    const QMetaProperty property = propertyOf(widget, name.constData());
    QVERIFY(property.isEnumType());
    QStringList seen;
    for (int i = 0; i < property.enumerator().keyCount(); ++i) {
        seen.append(QString::fromLatin1(property.enumerator().key(i)));
        QVERIFY(property.write(widget, property.enumerator().value(i)));
        QCOMPARE(property.read(widget).toInt(), property.enumerator().value(i));
    }
    QCOMPARE(seen.join(QLatin1String(",")), keys);
}

void tst_properties::backgroundOfEveryWidget()
{
    int seen = 0;
    for (size_t i = 0; i < sizeof makers / sizeof makers[0]; ++i) {
        QWidget* const made = makers[i].make(m_parent.data());
        CWidget* const widget = qobject_cast<CWidget*>(made);
        if (!widget || QByteArray(makers[i].name) == "CWidget")
            continue;
        ++seen;
        const char* const name = makers[i].name;
        QVERIFY2(widget->setProperty("backgroundColor", QColor(1, 2, 3)), name);
        QVERIFY2(widget->setProperty("borderColor", QColor(4, 5, 6)), name);
        QVERIFY2(widget->setProperty("borderWidth", 7), name);
        QVERIFY2(widget->setProperty("background", QPixmap(8, 9)), name);
        QVERIFY2(widget->setProperty("autoStyleEnabled", false), name);
        QCOMPARE(widget->getBackgroundColor(), QColor(1, 2, 3));
        QCOMPARE(widget->getBorderColor(), QColor(4, 5, 6));
        QCOMPARE(widget->getBorderWidth(), 7);
        QCOMPARE(widget->getBackground().size(), QSize(8, 9));
        QCOMPARE(widget->property("autoStyleEnabled").toBool(), false);
        QCOMPARE(propertyOf(widget, "backgroundColor").read(widget).value<QColor>(),
                 QColor(1, 2, 3));
    }
    QCOMPARE(seen, 17);
    CPageBar bar;
    bar.setProperty("backgroundColor", QColor(Qt::red)); // that of the class: the arrows' too
    QCOMPARE(bar.findChild<CPushButton*>()->getBackgroundColor(), QColor(Qt::red));
}

QTEST_MAIN(tst_properties)
#include "tst_properties.moc"
