#include "keypad/keypadedit.h"
#include "support/testing.h"
#include "widgets/toptitlearea.h"

#include <QKeyEvent>
#include <QPainter>
#include <QTextCursor>

namespace
{

CTopTitleArea* titleStripOf(const QWidget* edit)
{
    return edit->findChild<CTopTitleArea*>();
}

CKeyPadFactory::KeyPadType type(int number)
{
    return static_cast<CKeyPadFactory::KeyPadType>(number);
}

void setCursor(QTextEdit* edit, int position)
{
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(position);
    edit->setTextCursor(cursor);
}

int cursorOf(const QTextEdit* edit)
{
    return edit->textCursor().position();
}

} // namespace

class tst_keypadedit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newFieldIsEmptyAndRightAligned();
    void fontsOfFieldAndTitle();
    void titleStripIsWhiteOnTop();
    void fixedSizeGoesToTheStripToo();
    void titleIsPaintedInTheStrip();
    void setTextSetsTitleAndInserts();
    void setTextInsertsAtTheCursor();
    void setTextReplacesTheSelection();
    void settingTheTitleRepaintsTheStrip();
    void typedCharacters_data();
    void typedCharacters();
    void editingKeysDeleteTooInKeypadsForNumbers_data();
    void editingKeysDeleteTooInKeypadsForNumbers();
    void keysAtTheStartDeleteNothing();
    void modifiersDeleteToo();
    void pointsOfEveryKeyboardAreKeptByFloat();
    void filterLooksAtTheCodeOnly();
    void typeIsGeneralUntilSet();
};

void tst_keypadedit::newFieldIsEmptyAndRightAligned()
{
    QWidget parent;
    CKeyPadEdit edit(&parent);
    QCOMPARE(edit.parent(), static_cast<QObject*>(&parent));
    QVERIFY(edit.toPlainText().isEmpty());
    QVERIFY(edit.alignment() & Qt::AlignRight);
    QCOMPARE(edit.styleSheet(), QString("border:0px;"));
    QVERIFY(titleStripOf(&edit));
    QCOMPARE(titleStripOf(&edit)->parent(), static_cast<QObject*>(&edit));
    QVERIFY(titleStripOf(&edit)->title().isEmpty());
}

void tst_keypadedit::fontsOfFieldAndTitle()
{
    CKeyPadEdit edit;
    const QFont fonts[] = {edit.font(), titleStripOf(&edit)->font()};
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(fonts[i].family(), QString("Arial"));
        QCOMPARE(fonts[i].pointSize(), 12);
        QCOMPARE(fonts[i].weight(), static_cast<int>(QFont::Bold));
    }
}

void tst_keypadedit::titleStripIsWhiteOnTop()
{
    CKeyPadEdit edit;
    edit.setFixedSize(469, 82);
    edit.show();
    QVERIFY(testcompat::waitForWindow(&edit));
    QCOMPARE(titleStripOf(&edit)->getBackgroundColor(), QColor(Qt::white));
    QCOMPARE(titleStripOf(&edit)->geometry(), QRect(0, 0, 469, 30));
    QCOMPARE(edit.viewport()->geometry(), QRect(0, 30, 469, 52));
}

void tst_keypadedit::fixedSizeGoesToTheStripToo()
{
    CKeyPadEdit edit;
    edit.setFixedSize(300, 90);
    QCOMPARE(edit.size(), QSize(300, 90));
    QCOMPARE(edit.minimumSize(), QSize(300, 90));
    QCOMPARE(edit.maximumSize(), QSize(300, 90));
    QCOMPARE(titleStripOf(&edit)->width(), 300);
    QCOMPARE(titleStripOf(&edit)->minimumWidth(), 300);
    QCOMPARE(titleStripOf(&edit)->maximumWidth(), 300);
    QCOMPARE(titleStripOf(&edit)->height(), 30);
    edit.setFixedSize(QSize(310, 91));
    QCOMPARE(edit.size(), QSize(310, 91));
}

void tst_keypadedit::titleIsPaintedInTheStrip()
{
    CKeyPadEdit edit;
    edit.setFixedSize(300, 82);
    edit.setText("Title", QString());
    CTopTitleArea* strip = titleStripOf(&edit);
    strip->setFont(testing::testFont(16, true));
    QImage expected = testing::canvas(strip, Qt::white);
    {
        QPainter painter(&expected);
        painter.setFont(strip->font());
        painter.drawText(QPointF(20.0, 20.0), "Title");
    }
    QVERIFY(expected != testing::canvas(strip, Qt::white));
    CWIDGET_COMPARE_IMAGES(testing::render(strip), expected);
}

void tst_keypadedit::setTextSetsTitleAndInserts()
{
    CKeyPadEdit edit;
    edit.setText("First", "3");
    QCOMPARE(titleStripOf(&edit)->title(), QString("First"));
    QCOMPARE(edit.toPlainText(), QString("3"));
    QVERIFY(edit.alignment() & Qt::AlignRight);
    edit.setText("Second", "5");
    QCOMPARE(titleStripOf(&edit)->title(), QString("Second"));
    QCOMPARE(edit.toPlainText(), QString("35"));
    QCOMPARE(cursorOf(&edit), 2);
    edit.setText(QString(), QString());
    QVERIFY(titleStripOf(&edit)->title().isEmpty());
    QCOMPARE(edit.toPlainText(), QString("35"));
}

void tst_keypadedit::setTextInsertsAtTheCursor()
{
    CKeyPadEdit edit;
    edit.setText("Title", "15");
    setCursor(&edit, 1);
    edit.setText("Title", "234");
    QCOMPARE(edit.toPlainText(), QString("12345"));
    QCOMPARE(cursorOf(&edit), 4);
}

void tst_keypadedit::setTextReplacesTheSelection()
{
    CKeyPadEdit edit;
    edit.setText("Title", "old");
    edit.selectAll();
    edit.setText("Title", "new");
    QCOMPARE(edit.toPlainText(), QString("new"));
}

void tst_keypadedit::settingTheTitleRepaintsTheStrip()
{
    CKeyPadEdit edit;
    edit.setFixedSize(300, 82);
    edit.show();
    QVERIFY(testcompat::waitForWindow(&edit));
    QVERIFY(testing::repaints(titleStripOf(&edit), [&edit] { edit.setText("New", QString()); }));
}

void tst_keypadedit::typedCharacters_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("kept");
    QTest::newRow("general") << 0 << QByteArray("0123456789.-aAfFgGzZ!+ #");
    QTest::newRow("hexadecimal") << 1 << QByteArray("0123456789aAfF");
    QTest::newRow("binary") << 2 << QByteArray("01");
    QTest::newRow("decimal") << 3 << QByteArray("0123456789");
    QTest::newRow("float") << 4 << QByteArray("0123456789.");
    QTest::newRow("unknown") << 5 << QByteArray("0123456789.-aAfFgGzZ!+ #");
    QTest::newRow("negative") << -1 << QByteArray("0123456789.-aAfFgGzZ!+ #");
}

void tst_keypadedit::typedCharacters()
{
    QFETCH(int, type);
    QFETCH(QByteArray, kept);
    const char typed[] = "0123456789.-aAfFgGzZ!+ #";
    for (const char* ch = typed; *ch; ++ch) {
        CKeyPadEdit edit;
        edit.setSKPType(::type(type));
        edit.setText(QString(), "7");
        QTest::keyClick(&edit, *ch);
        const QString expected =
            QString("7") + (kept.contains(*ch) ? QString(QChar(*ch)) : QString());
        QCOMPARE(edit.toPlainText(), expected);
    }
}

void tst_keypadedit::editingKeysDeleteTooInKeypadsForNumbers_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("general"); // of "123456" with the cursor after the 3
    QTest::addColumn<QString>("number");
    QTest::newRow("backspace") << static_cast<int>(Qt::Key_Backspace) << "12456"
                               << "1456";
    QTest::newRow("delete") << static_cast<int>(Qt::Key_Delete) << "12356"
                            << "1256";
    QTest::newRow("left") << static_cast<int>(Qt::Key_Left) << "123456"
                          << "13456";
    QTest::newRow("right") << static_cast<int>(Qt::Key_Right) << "123456"
                           << "12356";
    QTest::newRow("home") << static_cast<int>(Qt::Key_Home) << "123456"
                          << "123456";
    QTest::newRow("end") << static_cast<int>(Qt::Key_End) << "123456"
                         << "12345";
    QTest::newRow("escape") << static_cast<int>(Qt::Key_Escape) << "123456"
                            << "12456";
    QTest::newRow("return") << static_cast<int>(Qt::Key_Return) << "123\n456"
                            << "123456";
}

void tst_keypadedit::editingKeysDeleteTooInKeypadsForNumbers()
{
    QFETCH(int, key);
    QFETCH(QString, general);
    QFETCH(QString, number);
    for (int number_ = 0; number_ < 5; ++number_) {
        CKeyPadEdit edit;
        edit.setFixedSize(469, 82);
        edit.setSKPType(type(number_));
        edit.setText(QString(), "123456");
        setCursor(&edit, 3);
        QTest::keyClick(&edit, static_cast<Qt::Key>(key));
        QCOMPARE(edit.toPlainText(), number_ == 0 ? general : number);
    }
}

void tst_keypadedit::keysAtTheStartDeleteNothing()
{
    CKeyPadEdit edit;
    edit.setSKPType(CKeyPadFactory::SKP_DECIMAL);
    edit.setText(QString(), "12");
    setCursor(&edit, 0);
    QTest::keyClick(&edit, Qt::Key_Left);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, 'x');
    QCOMPARE(edit.toPlainText(), QString("12"));
}

void tst_keypadedit::modifiersDeleteToo()
{
    CKeyPadEdit edit;
    edit.setSKPType(CKeyPadFactory::SKP_HEX);
    edit.setText(QString(), "12");
    QTest::keyPress(&edit, Qt::Key_Shift);
    QCOMPARE(edit.toPlainText(), QString("1"));
    QTest::keyRelease(&edit, Qt::Key_Shift);
    QCOMPARE(edit.toPlainText(), QString("1"));
}

void tst_keypadedit::pointsOfEveryKeyboardAreKeptByFloat()
{
    CKeyPadEdit edit;
    edit.setSKPType(CKeyPadFactory::SKP_FLOAT);
    edit.setText(QString(), "1");
    QKeyEvent foreign(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, ".");
    QCoreApplication::sendEvent(&edit, &foreign);
    QCOMPARE(edit.toPlainText(), QString("1."));
    QKeyEvent comma(QEvent::KeyPress, Qt::Key_Period, Qt::NoModifier, ",");
    QCoreApplication::sendEvent(&edit, &comma);
    QCOMPARE(edit.toPlainText(), QString("1."));
}

void tst_keypadedit::filterLooksAtTheCodeOnly()
{
    CKeyPadEdit edit;
    edit.setSKPType(CKeyPadFactory::SKP_BINARY);
    QKeyEvent other(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, "x");
    QCoreApplication::sendEvent(&edit, &other);
    QCOMPARE(edit.toPlainText(), QString("x"));
    QKeyEvent digit(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "1");
    QCoreApplication::sendEvent(&edit, &digit);
    QCOMPARE(edit.toPlainText(), QString("x"));
}

void tst_keypadedit::typeIsGeneralUntilSet()
{
    CKeyPadEdit edit;
    QTest::keyClicks(&edit, "az!");
    QCOMPARE(edit.toPlainText(), QString("az!"));
    edit.setSKPType(CKeyPadFactory::SKP_DECIMAL);
    QTest::keyClicks(&edit, "b4");
    QCOMPARE(edit.toPlainText(), QString("az!4"));
    edit.setSKPType(CKeyPadFactory::SKP_GENERAL);
    QTest::keyClicks(&edit, "b");
    QCOMPARE(edit.toPlainText(), QString("az!4b"));
}

QTEST_MAIN(tst_keypadedit)
#include "tst_keypadedit.moc"
