#include "parm/parmcheckbox.h"
#include "support/parmtesting.h"
#include "widgets/checkbox.h"

using namespace parmtesting;

namespace
{

// A field with its parts, and how the name is to look.
struct Fixture {
    CParmCheckBox field;
    CLabel* const name;
    CCheckBox* const box;
    LabelLook nameIs;

    Fixture()
        : field(QLatin1String("Heating"), QLatin1String("on")),
          name(label(&field)),
          box(field.findChild<CCheckBox*>()),
          nameIs(nameLook(QLatin1String("Heating")))
    {
        nameIs.font.setPixelSize(9);
        field.resize(300, 30);
        testing::render(&field);
    }

    QString fault()
    {
        return testing::difference(testing::render(name), picture(nameIs, name));
    }
};

} // namespace

class tst_parmcheckbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parts();
    void looksWithoutAStyle();
    void texts();
    void states();
    void aTouchIsForwardedOnce();
    void settingAStateIsForwarded();
    void theBorderIsTheCheckBoxs();
    void stylesOfTheFile_data();
    void stylesOfTheFile();
    void entriesForAllAreIgnored();
    void autoStyleGatesTheStyle();
    void onlyTheSignalIsItsOwn();
};

void tst_parmcheckbox::parts()
{
    QWidget parent;
    CParmCheckBox field(QLatin1String("Heating"), QLatin1String("on"), &parent);
    QCOMPARE(field.parentWidget(), &parent);
    QCOMPARE(layoutFault(&field, 5), QString());
    QCOMPARE(field.findChildren<CLabel*>().count(), 1);
    QCOMPARE(field.findChildren<CCheckBox*>().count(), 1);
    QCOMPARE(field.layout()->itemAt(0)->widget(), static_cast<QWidget*>(label(&field)));
    QCOMPARE(field.findChild<CCheckBox*>()->text(), QString::fromLatin1("on"));
    field.resize(300, 30);
    testing::render(&field);
    QCOMPARE(label(&field)->geometry().topLeft(), QPoint(0, 0));
    QCOMPARE(field.findChild<CCheckBox*>()->geometry().right(), 294);
    QCOMPARE(label(&field)->geometry().right() + 1, field.findChild<CCheckBox*>()->x());
}

void tst_parmcheckbox::looksWithoutAStyle()
{
    Fixture fixture;
    QCOMPARE(fixture.name->getBorderWidth(), 0);
    QCOMPARE(fixture.name->getBorderColor(), QColor(Qt::black));
    QCOMPARE(fixture.name->font().pixelSize(), 9);
    CWIDGET_COMPARE_LOOKS(fixture);
    CCheckBox reference(QLatin1String("on"));
    reference.setFixedWidth(fixture.box->width());
    CWIDGET_COMPARE_IMAGES(testing::render(fixture.box), testing::render(&reference));
}

void tst_parmcheckbox::texts()
{
    Fixture fixture;
    fixture.field.setName(QLatin1String("Cooling"));
    QCOMPARE(fixture.name->text(), QString::fromLatin1("Cooling"));
    QCOMPARE(fixture.box->text(), QString::fromLatin1("on"));
}

void tst_parmcheckbox::states()
{
    Fixture fixture;
    QCOMPARE(fixture.field.checkState(), Qt::Unchecked);
    fixture.field.setCheckState(Qt::Checked);
    QCOMPARE(fixture.field.checkState(), Qt::Checked);
    QVERIFY(fixture.box->isChecked());
    fixture.box->setChecked(false);
    QCOMPARE(fixture.field.checkState(), Qt::Unchecked);
}

void tst_parmcheckbox::aTouchIsForwardedOnce()
{
    Fixture fixture;
    QSignalSpy changes(&fixture.field, SIGNAL(stateChanged(int)));
    QTest::mouseClick(fixture.box, Qt::LeftButton, Qt::NoModifier, QPoint(12, 14));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toInt(), 2);
    QTest::mouseClick(fixture.box, Qt::LeftButton, Qt::NoModifier, QPoint(12, 14));
    QCOMPARE(changes.count(), 2);
    QCOMPARE(changes.at(1).at(0).toInt(), 0);
    QTest::mouseClick(fixture.name, Qt::LeftButton);
    QCOMPARE(changes.count(), 2);
}

void tst_parmcheckbox::settingAStateIsForwarded()
{
    Fixture fixture;
    QSignalSpy changes(&fixture.field, SIGNAL(stateChanged(int)));
    fixture.field.setCheckState(Qt::Checked);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toInt(), 2);
    fixture.field.setCheckState(Qt::Checked);
    QCOMPARE(changes.count(), 1);
    fixture.box->setChecked(false);
    QCOMPARE(changes.count(), 1);
}

void tst_parmcheckbox::theBorderIsTheCheckBoxs()
{
    Fixture fixture;
    CCheckBox reference(QLatin1String("on"));
    reference.setFixedWidth(fixture.box->width());
    const QImage framed = testing::render(&reference);
    reference.setBorderVisible(false);
    const QImage bare = testing::render(&reference);
    QVERIFY(framed != bare);
    fixture.field.setBorderVisible(false);
    CWIDGET_COMPARE_IMAGES(testing::render(fixture.box), bare);
    CWIDGET_COMPARE_LOOKS(fixture);
    fixture.field.setBorderVisible(true);
    CWIDGET_COMPARE_IMAGES(testing::render(fixture.box), framed);
    CWIDGET_COMPARE_LOOKS(fixture);
}

void tst_parmcheckbox::stylesOfTheFile_data()
{
    QTest::addColumn<int>("entries");
    for (int entries = 0; entries < EveryCombination; ++entries)
        QTest::newRow(QByteArray::number(entries).constData()) << entries;
}

void tst_parmcheckbox::stylesOfTheFile()
{
    QFETCH(int, entries);
    const testing::StyleFile file("CParmCheckBox", parmtesting::fieldsOf(entries));
    Fixture fixture;
    if (entries & NameEntry)
        styleByName(&fixture.nameIs);
    CWIDGET_COMPARE_LOOKS(fixture);
    CCheckBox reference(QLatin1String("on"));
    reference.setFixedWidth(fixture.box->width());
    if (entries & ValueEntry)
        reference.setFont(entryFont(ValueSize, true));
    CWIDGET_COMPARE_IMAGES(testing::render(fixture.box), testing::render(&reference));
}

void tst_parmcheckbox::entriesForAllAreIgnored()
{
    Fixture fixture;
    const QFont plain = fixture.box->font();
    fixture.field.setWidgetStyle(testing::styleOf(Style::FieldAll, testing::testFont(15)));
    CWIDGET_COMPARE_LOOKS(fixture);
    QCOMPARE(fixture.box->font().toString(), plain.toString());
}

void tst_parmcheckbox::autoStyleGatesTheStyle()
{
    Fixture fixture;
    fixture.field.setAutoStyleEnabled(false);
    fixture.field.setWidgetStyle(testing::styleOf(Style::FieldName, testing::testFont(15)));
    CWIDGET_COMPARE_LOOKS(fixture);
    fixture.field.setAutoStyleEnabled(true);
    fixture.field.setWidgetStyle(testing::styleOf(Style::FieldName, testing::testFont(15)));
    QCOMPARE(fixture.name->font().pixelSize(), 15);
}

void tst_parmcheckbox::onlyTheSignalIsItsOwn()
{
    const QMetaObject* const meta = &CParmCheckBox::staticMetaObject;
    QCOMPARE(meta->methodCount() - meta->methodOffset(), 1);
    QVERIFY(meta->indexOfSignal("stateChanged(int)") >= 0);
}

QTEST_MAIN(tst_parmcheckbox)
#include "tst_parmcheckbox.moc"
