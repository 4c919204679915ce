#include "pages/combobox.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetheader.h"
#include "pages/pagelistwidgetitem.h"
#include "parm/parmcombobox.h"
#include "support/parmtesting.h"
#include "support/rows.h"

using namespace parmtesting;

namespace
{

QStringList modes()
{
    return QString::fromLatin1("Off,Auto,Manual,Service").split(QLatin1Char(','));
}

QStringList numbers(int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts << QString::fromLatin1("Entry %1").arg(i);
    return texts;
}

// A field with its parts, and how the name is to look.
struct Fixture {
    CParmComboBox field;
    CLabel* const name;
    CComboBox* const combo;
    CPageListWidget* const list;
    LabelLook nameIs;

    explicit Fixture(const QStringList& items = modes(), const QString& current = QString())
        : field(QLatin1String("Mode"), items, current),
          name(label(&field)),
          combo(field.findChild<CComboBox*>()),
          list(combo->findChild<CPageListWidget*>()),
          nameIs(nameLook(QLatin1String("Mode")))
    {
        field.setWidth(240);
    }

    QString fault()
    {
        return testing::difference(testing::render(name), picture(nameIs, name));
    }

    // What the header of the list shows, and what it would with a title.
    QImage header()
    {
        return testing::render(list->findChild<CPageListWidgetHeader*>());
    }

    QImage headerWith(const QString& title)
    {
        CPageListWidgetHeader reference(title, QString());
        reference.setFixedSize(list->findChild<CPageListWidgetHeader*>()->size());
        return testing::render(&reference);
    }
};

} // namespace

class tst_parmcombobox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parts();
    void looksWithoutAStyle();
    void theFirstEntryIsChosenByDefault();
    void theInitialTextIgnoresCase();
    void anUnknownInitialTextChoosesTheFirst();
    void theListHasTheNameAsTitle();
    void choosing();
    void newEntries();
    void widths();
    void aMaskRestrictsTheEntries();
    void aMaskWithoutTheWishedEntryTakesTheLowest();
    void anEmptyMaskHidesTheField();
    void wideAndNarrowMasks();
    void theOtherRestrictionsAreForwarded();
    void backgroundColors();
    void textColors();
    void borders();
    void stylesOfTheFile_data();
    void stylesOfTheFile();
    void entriesForAllAreIgnored();
    void autoStyleGatesTheStyle();
    void aTouchedRowIsForwarded();
    void aKeyIsForwardedAsActivated();
    void settingAnIndexIsSilent();
    void signalsAndSlotsOfItsOwn();
};

void tst_parmcombobox::parts()
{
    QWidget parent;
    CParmComboBox field(QLatin1String("Mode"), modes(), QString(), &parent);
    QCOMPARE(field.parentWidget(), &parent);
    QCOMPARE(layoutFault(&field, 0), QString());
    QCOMPARE(field.findChildren<CComboBox*>().count(), 1);
    QCOMPARE(field.layout()->itemAt(0)->widget(), static_cast<QWidget*>(label(&field)));
    field.setWidth(300);
    testing::render(&field);
    QCOMPARE(label(&field)->geometry(), QRect(0, 0, 150, 28));
    QCOMPARE(field.findChild<CComboBox*>()->geometry(), QRect(150, 0, 150, 28));
}

void tst_parmcombobox::looksWithoutAStyle()
{
    Fixture fixture;
    QCOMPARE(fixture.name->getBorderWidth(), 0);
    QCOMPARE(fixture.name->getBorderColor(), QColor(Qt::black));
    CWIDGET_COMPARE_LOOKS(fixture);
}

void tst_parmcombobox::theFirstEntryIsChosenByDefault()
{
    Fixture fixture;
    QCOMPARE(fixture.field.currentIndex(), 0);
    QCOMPARE(fixture.field.currentText(), QString::fromLatin1("Off"));
    Fixture empty((QStringList()));
    QCOMPARE(empty.field.currentIndex(), 0);
    QCOMPARE(empty.field.currentText(), QString());
}

void tst_parmcombobox::theInitialTextIgnoresCase()
{
    Fixture fixture(modes(), QLatin1String("aUTO"));
    QCOMPARE(fixture.field.currentIndex(), 1);
    QCOMPARE(fixture.field.currentText(), QString::fromLatin1("Auto"));
    Fixture last(modes(), QLatin1String("Service"));
    QCOMPARE(last.field.currentIndex(), 3);
}

void tst_parmcombobox::anUnknownInitialTextChoosesTheFirst()
{
    const char* const texts[] = {"Aut", "Auto ", "Turbo", "*"};
    for (size_t i = 0; i < sizeof texts / sizeof texts[0]; ++i) {
        const testing::InRow inRow(i);
        Fixture fixture(modes(), QLatin1String(texts[i]));
        QCOMPARE(fixture.field.currentIndex(), 0);
        QCOMPARE(fixture.field.currentText(), QString::fromLatin1("Off"));
    }
}

void tst_parmcombobox::theListHasTheNameAsTitle()
{
    Fixture fixture;
    QVERIFY(fixture.headerWith(QLatin1String("Mode")) != fixture.headerWith(QLatin1String("Gear")));
    CWIDGET_COMPARE_IMAGES(fixture.header(), fixture.headerWith(QLatin1String("Mode")));
    fixture.field.setName(QLatin1String("Gear"));
    QCOMPARE(fixture.name->text(), QString::fromLatin1("Gear"));
    CWIDGET_COMPARE_IMAGES(fixture.header(), fixture.headerWith(QLatin1String("Mode")));
}

void tst_parmcombobox::choosing()
{
    Fixture fixture;
    fixture.field.setCurrentIndex(2);
    QCOMPARE(fixture.field.currentIndex(), 2);
    QCOMPARE(fixture.combo->currentIndex(), 2);
    QCOMPARE(fixture.field.currentText(), QString::fromLatin1("Manual"));
    QVERIFY(QMetaObject::invokeMethod(&fixture.field, "setCurrentIndex", Q_ARG(int, 3)));
    QCOMPARE(fixture.field.currentText(), QString::fromLatin1("Service"));
    fixture.field.setCurrentIndex(4);
    QCOMPARE(fixture.field.currentIndex(), 0);
    fixture.field.setCurrentIndex(-1);
    QCOMPARE(fixture.field.currentIndex(), 0);
}

void tst_parmcombobox::newEntries()
{
    Fixture fixture;
    fixture.field.setCurrentIndex(2);
    fixture.field.addItems(numbers(3));
    QCOMPARE(fixture.field.currentText(), QString::fromLatin1("Entry 0"));
    fixture.field.setCurrentIndex(2);
    QCOMPARE(fixture.field.currentText(), QString::fromLatin1("Entry 2"));
}

void tst_parmcombobox::widths()
{
    const int widths[][2] = {{200, 100}, {201, 100}, {1, 0}, {0, 0}, {333, 166}};
    for (size_t i = 0; i < sizeof widths / sizeof widths[0]; ++i) {
        const testing::InRow inRow(i);
        Fixture fixture;
        static_cast<CWidget&>(fixture.field).setWidth(widths[i][0]);
        QCOMPARE(fixture.field.minimumWidth(), widths[i][0]);
        QCOMPARE(fixture.field.maximumWidth(), widths[i][0]);
        QCOMPARE(fixture.name->minimumWidth(), widths[i][1]);
        QCOMPARE(fixture.name->maximumWidth(), widths[i][1]);
        QCOMPARE(fixture.combo->minimumWidth(), widths[i][1]);
        QCOMPARE(fixture.combo->maximumWidth(), widths[i][1]);
    }
}

void tst_parmcombobox::aMaskRestrictsTheEntries()
{
    QWidget page;
    Fixture fixture;
    fixture.field.setParent(&page);
    fixture.field.setVisibleItems(0xAu, 3);
    QCOMPARE(fixture.list->visibleItemsIndex(), QList<int>() << 1 << 3);
    QCOMPARE(fixture.field.currentIndex(), 3);
    QCOMPARE(fixture.field.currentText(), QString::fromLatin1("Service"));
    QVERIFY(!fixture.field.isHidden());
}

void tst_parmcombobox::aMaskWithoutTheWishedEntryTakesTheLowest()
{
    QWidget page;
    Fixture fixture;
    fixture.field.setParent(&page);
    fixture.field.setVisibleItems(0x5ULL, 1);
    QCOMPARE(fixture.list->visibleItemsIndex(), QList<int>() << 0 << 2);
    QCOMPARE(fixture.field.currentIndex(), 0);
}

void tst_parmcombobox::anEmptyMaskHidesTheField()
{
    QWidget page;
    Fixture fixture;
    fixture.field.setParent(&page);
    fixture.field.setVisibleItems(0xFu, 1);
    page.show();
    QVERIFY(testcompat::waitForWindow(&page));
    QVERIFY(fixture.name->isVisible());
    QVERIFY(fixture.combo->isVisible());
    fixture.field.setVisibleItems(0u, 2);
    QVERIFY(fixture.field.isHidden());
    QVERIFY(!fixture.name->isVisible());
    QVERIFY(!fixture.combo->isVisible());
    QVERIFY(!fixture.combo->isHidden());
    QCOMPARE(fixture.field.currentIndex(), 2);
    QCOMPARE(fixture.list->visibleItemsIndex().count(), 4);
    fixture.field.setVisibleItems(0ULL, 3);
    QVERIFY(fixture.field.isHidden());
    QCOMPARE(fixture.field.currentIndex(), 3);
    fixture.field.setVisibleItems(0x3ULL, 1);
    QVERIFY(fixture.field.isVisible());
    QVERIFY(fixture.name->isVisible());
    QVERIFY(fixture.combo->isVisible());
    QCOMPARE(fixture.field.currentIndex(), 1);
}

void tst_parmcombobox::wideAndNarrowMasks()
{
    QWidget page;
    Fixture fixture(numbers(64));
    fixture.field.setParent(&page);
    fixture.field.setVisibleItems((1ULL << 63) | (1ULL << 40) | 1ULL, 40);
    QCOMPARE(fixture.list->visibleItemsIndex(), QList<int>() << 0 << 40 << 63);
    QCOMPARE(fixture.field.currentIndex(), 40);
    fixture.field.setVisibleItems((1u << 31) | 2u, 31);
    QCOMPARE(fixture.list->visibleItemsIndex(), QList<int>() << 1 << 31);
    QCOMPARE(fixture.field.currentIndex(), 31);
    fixture.field.setVisibleItems(0x8000000000000000ULL, 0xFFFFFFFFu);
    QCOMPARE(fixture.field.currentIndex(), 63);
}

void tst_parmcombobox::theOtherRestrictionsAreForwarded()
{
    Fixture fixture;
    CComboBox combo;
    combo.addItems(modes());
    const CPageListWidget* const list = combo.findChild<CPageListWidget*>();
    const QStringList two = QStringList() << modes().at(1) << modes().at(3);
    for (int step = 0; step < 5; ++step) {
        switch (step) {
        case 0:
            fixture.field.setVisibleItems(QList<int>() << 3 << 1, 1);
            combo.setVisibleItems(QList<int>() << 3 << 1, 1);
            break;
        case 1:
            fixture.field.setVisibleItems(two, 3);
            combo.setVisibleItems(two, 3);
            break;
        case 2:
            fixture.field.setVisibleItems(two, modes().at(1));
            combo.setVisibleItems(two, modes().at(1));
            break;
        case 3:
            fixture.field.setInvisibleItems(QList<int>() << 0, 2);
            combo.setInvisibleItems(QList<int>() << 0, 2);
            break;
        default:
            fixture.field.setVisibleItem(modes().at(2));
            combo.setVisibleItem(modes().at(2));
        }
        QCOMPARE(fixture.list->visibleItemsIndex(), list->visibleItemsIndex());
        QCOMPARE(fixture.field.currentIndex(), combo.currentIndex());
        QCOMPARE(fixture.field.currentText(), combo.currentText());
        QVERIFY(fixture.list->visibleItemsIndex().count() < 4);
    }
}

void tst_parmcombobox::backgroundColors()
{
    const int flags[] = {FieldName, FieldAll, 3, -1};
    for (size_t i = 0; i < sizeof flags / sizeof flags[0]; ++i) {
        const testing::InRow inRow(i);
        Fixture fixture;
        const QImage before = testing::render(fixture.combo);
        fixture.field.setBackgroundColor(Qt::red, FieldValue);
        CWIDGET_COMPARE_LOOKS(fixture);
        fixture.field.setBackgroundColor(Qt::yellow, static_cast<FieldFlag>(flags[i]));
        fixture.nameIs.background = Qt::yellow;
        CWIDGET_COMPARE_LOOKS(fixture);
        CWIDGET_COMPARE_IMAGES(testing::render(fixture.combo), before);
    }
}

void tst_parmcombobox::textColors()
{
    const int flags[] = {FieldName, FieldAll, 3, -1};
    for (size_t i = 0; i < sizeof flags / sizeof flags[0]; ++i) {
        const testing::InRow inRow(i);
        Fixture fixture;
        const QImage before = testing::render(fixture.combo);
        fixture.field.setTextColor(Qt::red, FieldValue);
        CWIDGET_COMPARE_LOOKS(fixture);
        fixture.field.setTextColor(Qt::yellow, static_cast<FieldFlag>(flags[i]));
        fixture.nameIs.textColor = Qt::yellow;
        CWIDGET_COMPARE_LOOKS(fixture);
        CWIDGET_COMPARE_IMAGES(testing::render(fixture.combo), before);
    }
}

void tst_parmcombobox::borders()
{
    const int flags[] = {FieldName, FieldAll, 3, -1};
    for (size_t i = 0; i < sizeof flags / sizeof flags[0]; ++i) {
        const testing::InRow inRow(i);
        Fixture fixture;
        const QImage before = testing::render(fixture.combo);
        fixture.field.setBorderVisible(true, FieldValue);
        CWIDGET_COMPARE_LOOKS(fixture);
        fixture.field.setBorderVisible(true, static_cast<FieldFlag>(flags[i]));
        fixture.nameIs.borderWidth = 1;
        CWIDGET_COMPARE_LOOKS(fixture);
        fixture.field.setBorderVisible(false, FieldValue);
        CWIDGET_COMPARE_LOOKS(fixture);
        fixture.field.setBorderVisible(false, static_cast<FieldFlag>(flags[i]));
        fixture.nameIs.borderWidth = 0;
        CWIDGET_COMPARE_LOOKS(fixture);
        CWIDGET_COMPARE_IMAGES(testing::render(fixture.combo), before);
    }
}

void tst_parmcombobox::stylesOfTheFile_data()
{
    QTest::addColumn<int>("entries");
    for (int entries = 0; entries < EveryCombination; ++entries)
        QTest::newRow(QByteArray::number(entries).constData()) << entries;
}

void tst_parmcombobox::stylesOfTheFile()
{
    QFETCH(int, entries);
    const QFont plain = Fixture().combo->font();
    const testing::StyleFile file("CParmComboBox", parmtesting::fieldsOf(entries));
    Fixture fixture;
    if (entries & NameEntry)
        styleByName(&fixture.nameIs);
    CWIDGET_COMPARE_LOOKS(fixture);
    const QFont font = entries & ValueEntry ? entryFont(ValueSize, true) : plain;
    QCOMPARE(fixture.combo->font().pixelSize(), font.pixelSize());
    QCOMPARE(fixture.combo->font().bold(), font.bold());
    QCOMPARE(fixture.list->font().pixelSize(), font.pixelSize());
    QVERIFY(!fixture.combo->styleSheet().isEmpty());
}

void tst_parmcombobox::entriesForAllAreIgnored()
{
    Fixture fixture;
    const QFont plain = fixture.combo->font();
    fixture.field.setWidgetStyle(testing::styleOf(Style::FieldAll, testing::testFont(15)));
    CWIDGET_COMPARE_LOOKS(fixture);
    QCOMPARE(fixture.combo->font().toString(), plain.toString());
}

void tst_parmcombobox::autoStyleGatesTheStyle()
{
    Fixture fixture;
    fixture.field.setAutoStyleEnabled(false);
    fixture.field.setWidgetStyle(testing::styleOf(Style::FieldName, testing::testFont(15)));
    CWIDGET_COMPARE_LOOKS(fixture);
    fixture.field.setAutoStyleEnabled(true);
    fixture.field.setWidgetStyle(testing::styleOf(Style::FieldName, testing::testFont(15)));
    QCOMPARE(fixture.name->font().pixelSize(), 15);
}

void tst_parmcombobox::aTouchedRowIsForwarded()
{
    Fixture fixture;
    fixture.field.show();
    QVERIFY(testcompat::waitForWindow(&fixture.field));
    QSignalSpy changed(&fixture.field, SIGNAL(currentIndexChanged(int)));
    QSignalSpy activated(&fixture.field, SIGNAL(activated(int)));
    fixture.combo->showPopup();
    QVERIFY(fixture.list->isVisible());
    QTest::mouseClick(fixture.list->findChildren<CPageListWidgetItem*>().at(2), Qt::LeftButton);
    QVERIFY(!fixture.list->isVisible());
    QCOMPARE(fixture.field.currentIndex(), 2);
    QCOMPARE(fixture.field.currentText(), QString::fromLatin1("Manual"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toInt(), 2);
    QCOMPARE(activated.count(), 1);
    QCOMPARE(activated.at(0).at(0).toInt(), 2);
}

void tst_parmcombobox::aKeyIsForwardedAsActivated()
{
    Fixture fixture;
    fixture.field.show();
    QVERIFY(testcompat::waitForWindow(&fixture.field));
    QSignalSpy changed(&fixture.field, SIGNAL(currentIndexChanged(int)));
    QSignalSpy activated(&fixture.field, SIGNAL(activated(int)));
    QTest::keyClick(fixture.combo, Qt::Key_Down);
    QCOMPARE(fixture.field.currentText(), QString::fromLatin1("Auto"));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(activated.count(), 1);
    QCOMPARE(activated.at(0).at(0).toInt(), 1);
}

void tst_parmcombobox::settingAnIndexIsSilent()
{
    QWidget page;
    Fixture fixture;
    fixture.field.setParent(&page);
    QSignalSpy changed(&fixture.field, SIGNAL(currentIndexChanged(int)));
    QSignalSpy activated(&fixture.field, SIGNAL(activated(int)));
    fixture.field.setCurrentIndex(3);
    fixture.field.setVisibleItems(0x6u, 1);
    fixture.field.setVisibleItem(modes().at(2));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(activated.count(), 0);
}

void tst_parmcombobox::signalsAndSlotsOfItsOwn()
{
    const QMetaObject* const meta = &CParmComboBox::staticMetaObject;
    QCOMPARE(meta->methodCount() - meta->methodOffset(), 3);
    QVERIFY(meta->indexOfSignal("currentIndexChanged(int)") >= 0);
    QVERIFY(meta->indexOfSignal("activated(int)") >= 0);
    QVERIFY(meta->indexOfSlot("setCurrentIndex(int)") >= 0);
}

QTEST_MAIN(tst_parmcombobox)
#include "tst_parmcombobox.moc"
