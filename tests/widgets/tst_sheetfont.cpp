#include "support/testing.h"

#include "pages/combobox.h"
#include "pages/pagelistwidget.h"
#include "widgets/lineedit.h"

#include <QApplication>
#include <QHBoxLayout>

// A field and a box take their own style sheet off to set a font, or leave it on where that changes
// nothing. Whatever they do, they end up as one whose sheet the test takes off and puts on again.

namespace
{

const char styleFile[] = CWIDGET_SOURCE_DIR "/style/widget-style.xml";

/// A control in a panel of its own.
template <typename Control>
struct Fixture {
    QWidget panel;
    Control* control;

    Fixture() : control(new Control(&panel))
    {
        control->setFixedSize(150, 28);
        QHBoxLayout* layout = new QHBoxLayout(&panel);
        layout->addWidget(control);
    }

    ~Fixture()
    {
        qApp->setStyleSheet(QString());
    }
};

struct Situation {
    const char* name;
    void (*prepare)(QWidget* panel, QWidget* control);
};

const char fontSheet[] = "* { font: 19px \"Arial\"; }";

const Situation situations[] = {
    {"new", [](QWidget*, QWidget*) {}},
    {"panel with a sheet",
     [](QWidget* panel, QWidget*) { panel->setStyleSheet(QLatin1String(fontSheet)); }},
    {"application with a sheet",
     [](QWidget*, QWidget*) { qApp->setStyleSheet(QLatin1String(fontSheet)); }},
    {"another sheet",
     [](QWidget*, QWidget* control) { control->setStyleSheet(QLatin1String(fontSheet)); }},
    {"no sheet", [](QWidget*, QWidget* control) { control->setStyleSheet(QString()); }},
    {"font set past the sheet",
     [](QWidget*, QWidget* control) { control->setFont(testing::testFont(14)); }},
    {"font of the panel",
     [](QWidget* panel, QWidget*) { panel->setFont(testing::testFont(21, true)); }},
    {"on screen",
     [](QWidget* panel, QWidget*) {
         panel->show();
         testcompat::waitForWindow(panel);
     }},
};

/// The one of the style file, with its three attributes set.
QFont styleFont()
{
    return CWidgetStyle::getWidgetStyle(QLatin1String("CLineEdit"), nullptr).styles.first().font;
}

QFont withItalic(QFont font, bool italic)
{
    font.setItalic(italic);
    return font;
}

struct FontRow {
    const char* name;
    QFont (*font)();
};

const FontRow fonts[] = {
    {"the same", styleFont},
    {"the same, upright", [] { return withItalic(styleFont(), false); }},
    {"italic", [] { return withItalic(styleFont(), true); }},
    {"another", [] { return testing::testFont(11); }},
    {"none", [] { return QFont(); }},
};

void setFontOfList(QWidget* control, const QFont& font)
{
    if (CPageListWidget* list = control->findChild<CPageListWidget*>())
        list->setFont(font);
}

void setFontWithoutSheet(QWidget* control, const QFont& font)
{
    const QString sheet = control->styleSheet();
    control->setStyleSheet(QString());
    control->setFont(font);
    setFontOfList(control, font);
    control->setStyleSheet(sheet);
}

/// The control, and the list of a box with all its parts. Not the popup that Qt makes for a box: it
/// is never opened, and loses its font with the sheet until it gets another one.
QList<QWidget*> partsOf(QWidget* control)
{
    QList<QWidget*> parts;
    if (CPageListWidget* list = control->findChild<CPageListWidget*>())
        parts << list << list->findChildren<QWidget*>();
    return parts << control;
}

/// All that a font leaves behind: what it is, what Qt keeps of it, and what it is without the
/// sheets and under a parent with another one.
template <typename Control>
QStringList traces(Fixture<Control>* fixture)
{
    const QList<QWidget*> parts = partsOf(fixture->control);
    QStringList found(fixture->control->styleSheet());
    for (int step = 0; step < 3; ++step) {
        for (int i = 0; i < parts.size(); ++i) {
            found << QString::fromLatin1(parts.at(i)->metaObject()->className())
                  << parts.at(i)->font().toString()
                  << QString::number(parts.at(i)->testAttribute(Qt::WA_SetFont))
                  << QString::number(parts.at(i)->dynamicPropertyNames().size());
        }
        if (step == 0) {
            qApp->setStyleSheet(QString());
            fixture->panel.setStyleSheet(QString());
            fixture->control->setStyleSheet(QString());
        }
        QFont font = testing::testFont(9, true);
        font.setUnderline(true);
        font.setItalic(true);
        fixture->panel.setFont(font);
    }
    return found;
}

} // namespace

class tst_sheetfont : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void field_data();
    void field();
    void box_data();
    void box();
    void leavesTheSheetOfANewControlOn();

private:
    template <typename Control>
    void leavesTheSameTraces(int situation, int font);
};

void tst_sheetfont::initTestCase()
{
    QVERIFY(CWidgetStyle::initialize(QLatin1String(styleFile)));
}

void tst_sheetfont::field_data()
{
    QTest::addColumn<int>("situation");
    QTest::addColumn<int>("font");
    for (size_t i = 0; i < sizeof situations / sizeof situations[0]; ++i) {
        for (size_t j = 0; j < sizeof fonts / sizeof fonts[0]; ++j) {
            const QString name = QString::fromLatin1("%1: %2").arg(
                QLatin1String(fonts[j].name), QLatin1String(situations[i].name));
            QTest::newRow(qPrintable(name)) << static_cast<int>(i) << static_cast<int>(j);
        }
    }
}

void tst_sheetfont::field()
{
    QFETCH(int, situation);
    QFETCH(int, font);
    leavesTheSameTraces<CLineEdit>(situation, font);
}

void tst_sheetfont::box_data()
{
    field_data();
}

void tst_sheetfont::box()
{
    QFETCH(int, situation);
    QFETCH(int, font);
    leavesTheSameTraces<CComboBox>(situation, font);
}

template <typename Control>
void tst_sheetfont::leavesTheSameTraces(int situation, int font)
{
    QStringList found;
    QImage picture;
    {
        Fixture<Control> fixture;
        situations[situation].prepare(&fixture.panel, fixture.control);
        fixture.control->setFont(fonts[font].font());
        picture = testing::render(fixture.control);
        found = traces(&fixture);
    }
    Fixture<Control> expected;
    situations[situation].prepare(&expected.panel, expected.control);
    setFontWithoutSheet(expected.control, fonts[font].font());
    CWIDGET_COMPARE_IMAGES(picture, testing::render(expected.control));
    QCOMPARE(found, traces(&expected));
}

void tst_sheetfont::leavesTheSheetOfANewControlOn()
{
    Fixture<CLineEdit> field;
    testing::EventCounter ofField(field.control, QEvent::StyleChange);
    field.control->setFont(styleFont());
    QCOMPARE(ofField.count(), 0);
    field.control->setFont(testing::testFont(11));
    QCOMPARE(ofField.count(), 2);
    Fixture<CComboBox> box;
    testing::EventCounter ofBox(box.control, QEvent::StyleChange);
    box.control->setFont(styleFont());
    QCOMPARE(ofBox.count(), 0);
    box.control->setFont(testing::testFont(11));
    QCOMPARE(ofBox.count(), 2);
}

QTEST_MAIN(tst_sheetfont)
#include "tst_sheetfont.moc"
