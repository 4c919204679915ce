#include "support/keypads.h"
#include "support/stylefile.h"
#include "widgets/lineedit.h"

#include <QApplication>
#include <QSignalSpy>

namespace
{

/// A plain field that looks as the one under test without its frame.
QImage renderPlain(const CLineEdit& edit)
{
    QLineEdit plain;
    plain.setStyleSheet("border: 0px;");
    plain.setFont(edit.font());
    plain.setFixedSize(edit.size());
    plain.setText(edit.text());
    return testing::render(&plain);
}

/// Notes the style sheets that a field has when its font changes.
class SheetsOfFontChanges : public QObject
{
public:
    explicit SheetsOfFontChanges(CLineEdit* edit) : m_edit(edit)
    {
        edit->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_edit && event->type() == QEvent::FontChange)
            m_sheets.append(m_edit->styleSheet());
        return false;
    }

    QStringList sheets() const
    {
        return m_sheets;
    }

private:
    CLineEdit* m_edit;
    QStringList m_sheets;
};

} // namespace

class tst_lineedit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void newFieldHasItsDefaults();
    void frameOfOnePixel_data();
    void frameOfOnePixel();
    void frameCanBeHidden();
    void plainFieldOtherwise();
    void fontGoesThroughTheStyleSheet();
    void ownStyleSheetIsKeptByTheFont();
    void styleRecord();
    void styleTableIsAskedOnConstruction();
    void autoStyleOffIgnoresTheRecord();
};

void tst_lineedit::cleanup()
{
    testing::deleteDeferred();
    QCOMPARE(testing::livingWidgets<CLineEdit>(), 0);
    QCOMPARE(testing::livingWidgets<CSoftKeyPad>(), 0);
}

void tst_lineedit::newFieldHasItsDefaults()
{
    QWidget parent;
    CLineEdit edit(&parent);
    QCOMPARE(edit.parent(), static_cast<QObject*>(&parent));
    QCOMPARE(edit.height(), 28);
    QCOMPARE(edit.minimumHeight(), 28);
    QCOMPARE(edit.maximumHeight(), 28);
    QCOMPARE(edit.styleSheet(), QString("border: 0px;"));
    QVERIFY(edit.isSKPActive());
    QVERIFY(edit.isAutoStyleEnabled());
    QVERIFY(edit.text().isEmpty());
    QVERIFY(!CLineEdit().parent());
}

void tst_lineedit::frameOfOnePixel_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << 120 << "";
    QTest::newRow("text") << 121 << "Some text";
    QTest::newRow("text beyond the edge") << 40 << "Some long text";
    QTest::newRow("narrow") << 2 << "";
}

void tst_lineedit::frameOfOnePixel()
{
    QFETCH(int, width);
    QFETCH(QString, text);
    CLineEdit edit;
    edit.setFixedWidth(width);
    edit.setText(text);
    QImage expected = renderPlain(edit);
    const QRgb grey = qRgb(0xd4, 0xd4, 0xd4);
    for (int x = 0; x < width; ++x) {
        expected.setPixel(x, 0, grey);
        expected.setPixel(x, 27, grey);
    }
    for (int y = 0; y < 28; ++y) {
        expected.setPixel(0, y, grey);
        expected.setPixel(width - 1, y, grey);
    }
    CWIDGET_COMPARE_IMAGES(testing::render(&edit), expected);
}

void tst_lineedit::frameCanBeHidden()
{
    CLineEdit edit;
    edit.setFixedWidth(100);
    edit.show();
    QVERIFY(testcompat::waitForWindow(&edit));
    QVERIFY(testing::repaints(&edit, [&edit] { edit.setBorderVisible(false); }));
    edit.hide();
    CWIDGET_COMPARE_IMAGES(testing::render(&edit), renderPlain(edit));
    edit.setBorderVisible(true);
    QCOMPARE(testing::render(&edit).pixel(50, 0), qRgb(0xd4, 0xd4, 0xd4));
}

void tst_lineedit::plainFieldOtherwise()
{
    CLineEdit edit;
    edit.setSKPActive(false);
    QSignalSpy edited(&edit, SIGNAL(textEdited(QString)));
    QTest::keyClicks(&edit, "ab");
    QCOMPARE(edit.text(), QString("ab"));
    QCOMPARE(edited.count(), 2);
    QTest::mouseDClick(&edit, Qt::LeftButton, Qt::NoModifier, QPoint(4, 14));
    QCOMPARE(edit.selectedText(), QString("ab"));
}

void tst_lineedit::fontGoesThroughTheStyleSheet()
{
    CLineEdit edit;
    edit.setFont(testing::testFont(22, true));
    QCOMPARE(edit.font().pixelSize(), 22);
    QVERIFY(edit.font().bold());
    QCOMPARE(edit.styleSheet(), QString("border: 0px;"));
    edit.setFixedWidth(150);
    edit.setText("Big");
    edit.setBorderVisible(false);
    const QImage big = testing::render(&edit);
    CWIDGET_COMPARE_IMAGES(big, renderPlain(edit));
    edit.setFont(testing::testFont(10));
    QVERIFY(testing::render(&edit) != big);
}

void tst_lineedit::ownStyleSheetIsKeptByTheFont()
{
    CLineEdit edit;
    const QString sheet = "border: 0px; color: red;";
    edit.setStyleSheet(sheet);
    SheetsOfFontChanges changes(&edit);
    edit.setFont(testing::testFont(17));
    QCOMPARE(edit.font().pixelSize(), 17);
    QVERIFY(changes.sheets().contains(QString())); // the font was set without one
    QCOMPARE(edit.styleSheet(), sheet);
    edit.setStyleSheet(QString());
    edit.setFont(testing::testFont(18));
    QCOMPARE(edit.font().pixelSize(), 18);
    QCOMPARE(edit.styleSheet(), QString());
}

void tst_lineedit::styleRecord()
{
    CLineEdit edit;
    edit.setFont(testing::testFont(11));
    edit.setWidgetStyle(testing::styleOf(Style::FieldName, testing::testFont(30)));
    edit.setWidgetStyle(testing::styleOf(Style::FieldValue, testing::testFont(31)));
    QCOMPARE(edit.font().pixelSize(), 11);
    WidgetStyle style = testing::styleOf(Style::FieldAll, testing::testFont(19));
    style.styles.append(
        testing::styleOf(Style::FieldAll, testing::testFont(20, true)).styles.at(0));
    edit.setWidgetStyle(style);
    QCOMPARE(edit.font().pixelSize(), 20);
    QVERIFY(edit.font().bold());
    QCOMPARE(edit.styleSheet(), QString("border: 0px;"));
    edit.setWidgetStyle(WidgetStyle());
    QCOMPARE(edit.font().pixelSize(), 20);
}

void tst_lineedit::styleTableIsAskedOnConstruction()
{
    const testing::StyleFile file("CLineEdit", 23);
    CLineEdit edit;
    QCOMPARE(edit.font().pixelSize(), 23);
    QVERIFY(edit.font().bold());
    QCOMPARE(edit.font().family(), QString("Arial"));
}

void tst_lineedit::autoStyleOffIgnoresTheRecord()
{
    CLineEdit edit;
    edit.setFont(testing::testFont(11));
    edit.setAutoStyleEnabled(false);
    QVERIFY(!edit.isAutoStyleEnabled());
    edit.setWidgetStyle(testing::styleOf(Style::FieldAll, testing::testFont(19)));
    QCOMPARE(edit.font().pixelSize(), 11);
    edit.setAutoStyleEnabled(true);
    edit.setWidgetStyle(testing::styleOf(Style::FieldAll, testing::testFont(19)));
    QCOMPARE(edit.font().pixelSize(), 19);
}

QTEST_MAIN(tst_lineedit)
#include "tst_lineedit.moc"
