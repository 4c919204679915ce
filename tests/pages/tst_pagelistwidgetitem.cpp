#include "pages/pagelistwidgetitem.h"
#include "support/stylefile.h"
#include "support/testing.h"

#include <QPainter>

namespace
{

const QColor selectColor(67, 172, 232);
const QColor hoverColor(232, 242, 254);

/// A picture of four colours, so that a shift of one pixel shows.
QPixmap picture(int side)
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::red);
    QPainter painter(&pixmap);
    painter.fillRect(0, 0, side / 2, side / 2, Qt::green);
    painter.fillRect(side / 2, side / 2, side / 2, side / 2, Qt::blue);
    painter.fillRect(1, 1, 1, 1, Qt::black);
    return pixmap;
}

QString label()
{
    return QString::fromLatin1("Baud rate");
}

void drawText(QImage* image, const CPageListWidgetItem& row, const QString& text)
{
    QPainter painter(image);
    painter.setPen(Qt::black);
    painter.setFont(row.font());
    painter.drawText(QRect(0, 0, row.width() - 20, row.height()), Qt::AlignRight | Qt::AlignVCenter,
                     text);
}

QImage expectedRow(const CPageListWidgetItem& row, const QColor& background, const QString& text)
{
    QImage image = testing::canvas(&row, background);
    drawText(&image, row, text);
    return image;
}

} // namespace

class tst_pagelistwidgetitem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowWithText();
    void rowWithIcon();
    void setActiveHidesButNeverShows();
    void paintsTextRightAligned();
    void paintsSelectedOverHovered();
    void paintsTextsOfAllKinds_data();
    void paintsTextsOfAllKinds();
    void paintsIconFlushLeft_data();
    void paintsIconFlushLeft();
    void bigIconsKeepTheirSize();
    void rowWithIconHasNoColors();
    void clearEmptiesTheRow();
    void settersRepaint();
    void baseWidgetIsPaintedFirst();
    void fontComesFromTheComboBoxStyle();
};

void tst_pagelistwidgetitem::rowWithText()
{
    CPageListWidgetItem row(label());
    QCOMPARE(row.index(), -1);
    QCOMPARE(row.text(), label());
    QVERIFY(!row.isActive());
    QVERIFY(row.hasMouseTracking());
    QCOMPARE(row.minimumHeight(), 28);
    QCOMPARE(row.maximumHeight(), 28);
    QVERIFY(row.initialize());
    row.setIndex(7);
    QCOMPARE(row.index(), 7);
}

void tst_pagelistwidgetitem::rowWithIcon()
{
    CPageListWidgetItem row(QIcon(picture(20)), label());
    QCOMPARE(row.index(), -1);
    QCOMPARE(row.text(), label());
    QVERIFY(row.isActive());
    QVERIFY(row.hasMouseTracking());
    QCOMPARE(row.minimumHeight(), 28);
}

void tst_pagelistwidgetitem::setActiveHidesButNeverShows()
{
    CPageListWidgetItem row(label());
    row.show();
    row.setActive(true);
    QVERIFY(row.isVisible());
    row.setActive(false);
    QVERIFY(!row.isActive());
    QVERIFY(!row.isVisible());
    row.setActive(true);
    QVERIFY(row.isActive());
    QVERIFY(!row.isVisible());
}

void tst_pagelistwidgetitem::paintsTextRightAligned()
{
    CPageListWidgetItem row(label());
    row.setFont(testing::testFont(14));
    row.setSize(216, 28);
    CWIDGET_COMPARE_IMAGES(testing::render(&row), expectedRow(row, Qt::magenta, label()));
    row.setText(QString());
    CWIDGET_COMPARE_IMAGES(testing::render(&row), testing::canvas(&row));
}

void tst_pagelistwidgetitem::paintsSelectedOverHovered()
{
    CPageListWidgetItem row(label());
    row.setFont(testing::testFont(14));
    row.setSize(216, 28);
    row.setHoverIn();
    CWIDGET_COMPARE_IMAGES(testing::render(&row), expectedRow(row, hoverColor, label()));
    row.setSelect(true);
    CWIDGET_COMPARE_IMAGES(testing::render(&row), expectedRow(row, selectColor, label()));
    row.setHoverOut();
    CWIDGET_COMPARE_IMAGES(testing::render(&row), expectedRow(row, selectColor, label()));
    row.setSelect(false);
    CWIDGET_COMPARE_IMAGES(testing::render(&row), expectedRow(row, Qt::magenta, label()));
}

void tst_pagelistwidgetitem::paintsTextsOfAllKinds_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("wider than the row") << QString(200, QLatin1Char('W'));
    QTest::newRow("right to left") << QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d 12 abc");
    QTest::newRow("two lines") << QString::fromLatin1("one\ntwo");
    QTest::newRow("an ampersand") << QString::fromLatin1("R&D");
    QTest::newRow("a blank") << QString::fromLatin1(" ");
}

void tst_pagelistwidgetitem::paintsTextsOfAllKinds()
{
    QFETCH(QString, text);
    CPageListWidgetItem row(text);
    row.setFont(testing::testFont(14));
    row.setSize(216, 28);
    CWIDGET_COMPARE_IMAGES(testing::render(&row), expectedRow(row, Qt::magenta, text));
}

void tst_pagelistwidgetitem::paintsIconFlushLeft_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("top");
    QTest::newRow("28") << 28 << 3;
    QTest::newRow("29") << 29 << 4;
    QTest::newRow("20") << 20 << -1;
}

void tst_pagelistwidgetitem::paintsIconFlushLeft()
{
    QFETCH(int, height);
    QFETCH(int, top);
    CPageListWidgetItem row(QIcon(picture(20)), label());
    row.setFont(testing::testFont(14));
    row.setSize(216, height);
    QImage expected = testing::canvas(&row);
    QPainter(&expected).drawPixmap(-1, top, picture(20));
    drawText(&expected, row, label());
    CWIDGET_COMPARE_IMAGES(testing::render(&row), expected);
}

void tst_pagelistwidgetitem::bigIconsKeepTheirSize()
{
    const QIcon icon(picture(64));
    CPageListWidgetItem row(icon, QString());
    row.setSize(216, 28);
    QImage expected = testing::canvas(&row);
    QPainter(&expected).drawPixmap(-1, 3, icon.pixmap(20, 20));
    CWIDGET_COMPARE_IMAGES(testing::render(&row), expected);
}

void tst_pagelistwidgetitem::rowWithIconHasNoColors()
{
    CPageListWidgetItem row(QIcon(picture(20)), label());
    row.setFont(testing::testFont(14));
    row.setSize(216, 28);
    const QImage plain = testing::render(&row);
    row.setHoverIn();
    CWIDGET_COMPARE_IMAGES(testing::render(&row), plain);
    row.setSelect(true);
    CWIDGET_COMPARE_IMAGES(testing::render(&row), plain);
}

void tst_pagelistwidgetitem::clearEmptiesTheRow()
{
    CPageListWidgetItem row(QIcon(picture(20)), label());
    row.setSize(216, 28);
    row.setSelect(true);
    row.setHoverIn();
    row.setIndex(4);
    row.clear();
    QCOMPARE(row.text(), QString());
    QCOMPARE(row.index(), 4);
    QVERIFY(row.isActive());
    CWIDGET_COMPARE_IMAGES(testing::render(&row), testing::canvas(&row));
    CPageListWidgetItem textRow(label());
    textRow.setSize(216, 28);
    textRow.setSelect(true);
    textRow.setHoverIn();
    textRow.clear();
    CWIDGET_COMPARE_IMAGES(testing::render(&textRow), testing::canvas(&textRow));
}

void tst_pagelistwidgetitem::settersRepaint()
{
    CPageListWidgetItem row(label());
    row.setSize(216, 28);
    row.show();
    QVERIFY(testcompat::waitForWindow(&row));
    QVERIFY(testing::repaints(&row, [&row]() { row.setText(QString::fromLatin1("x")); }));
    QVERIFY(testing::repaints(&row, [&row]() { row.setSelect(true); }));
    QVERIFY(testing::repaints(&row, [&row]() { row.setHoverIn(); }));
    QVERIFY(testing::repaints(&row, [&row]() { row.setHoverOut(); }));
    QVERIFY(testing::repaints(&row, [&row]() { row.clear(); }));
}

void tst_pagelistwidgetitem::baseWidgetIsPaintedFirst()
{
    CPageListWidgetItem row(label());
    row.setFont(testing::testFont(14));
    row.setSize(216, 28);
    row.setBackgroundColor(Qt::yellow);
    CWIDGET_COMPARE_IMAGES(testing::render(&row), expectedRow(row, Qt::yellow, label()));
    row.setBorderWidth(2);
    row.setSelect(true); // covers background and border
    CWIDGET_COMPARE_IMAGES(testing::render(&row), expectedRow(row, selectColor, label()));
}

void tst_pagelistwidgetitem::fontComesFromTheComboBoxStyle()
{
    const testing::StyleFile file("CComboBox", 21);
    CPageListWidgetItem row(label());
    QCOMPARE(row.font().pixelSize(), 21);
    QVERIFY(row.font().bold());
    CPageListWidgetItem iconRow(QIcon(), label());
    QCOMPARE(iconRow.font().pixelSize(), 21);
}

QTEST_MAIN(tst_pagelistwidgetitem)
#include "tst_pagelistwidgetitem.moc"
