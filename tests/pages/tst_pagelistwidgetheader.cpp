#include "pages/pagelistwidgetheader.h"
#include "support/stylefile.h"
#include "support/testing.h"

#include <QPainter>

namespace
{

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

QImage expectedHeader(const CPageListWidgetHeader& header, const char* title, const char* value)
{
    QImage image = testing::canvas(&header, Qt::black);
    const int width = header.width();
    const int height = header.height();
    QPainter painter(&image);
    painter.fillRect(1, 1, width - 2, height - 2, Qt::white);
    painter.setFont(header.font());
    painter.drawText(QRect(10, 10, width, height), Qt::AlignLeft | Qt::AlignTop, text(title));
    painter.drawText(QRect(0, 0, width - 10, height - 10), Qt::AlignRight | Qt::AlignBottom,
                     text(value));
    return image;
}

} // namespace

class tst_pagelistwidgetheader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newHeaderIsWhiteWithABlackBorder();
    void constructedWithTexts();
    void paintsTitleAndText_data();
    void paintsTitleAndText();
    void settersRepaint();
    void fontComesFromTheComboBoxStyle();
};

void tst_pagelistwidgetheader::newHeaderIsWhiteWithABlackBorder()
{
    CPageListWidgetHeader header;
    QCOMPARE(header.text(), QString());
    QCOMPARE(header.getBackgroundColor(), QColor(Qt::white));
    QCOMPARE(header.getBorderColor(), QColor(Qt::black));
    QCOMPARE(header.getBorderWidth(), 1);
    QVERIFY(header.initialize());
    header.setFont(testing::testFont(14));
    header.setSize(220, 60);
    CWIDGET_COMPARE_IMAGES(testing::render(&header), expectedHeader(header, "", ""));
}

void tst_pagelistwidgetheader::constructedWithTexts()
{
    CPageListWidgetHeader header(text("Baud rate"), text("9600"));
    QCOMPARE(header.text(), text("9600"));
    QCOMPARE(header.getBorderWidth(), 1);
    header.setFont(testing::testFont(14));
    header.setSize(220, 60);
    CWIDGET_COMPARE_IMAGES(testing::render(&header), expectedHeader(header, "Baud rate", "9600"));
}

void tst_pagelistwidgetheader::paintsTitleAndText_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("value");
    QTest::newRow("title") << text("Baud rate") << QString();
    QTest::newRow("text") << QString() << text("9600");
    QTest::newRow("both") << text("Baud rate") << text("9600");
    QTest::newRow("wider than the header") << QString(100, QLatin1Char('W')) << text("iiiiiiii");
}

void tst_pagelistwidgetheader::paintsTitleAndText()
{
    QFETCH(QString, title);
    QFETCH(QString, value);
    CPageListWidgetHeader header;
    header.setFont(testing::testFont(14));
    header.setSize(180, 60);
    header.setTitle(title);
    header.setText(value);
    QCOMPARE(header.text(), value);
    QImage expected =
        expectedHeader(header, title.toLatin1().constData(), value.toLatin1().constData());
    CWIDGET_COMPARE_IMAGES(testing::render(&header), expected);
}

void tst_pagelistwidgetheader::settersRepaint()
{
    CPageListWidgetHeader header;
    header.setSize(180, 60);
    header.show();
    QVERIFY(testcompat::waitForWindow(&header));
    QVERIFY(testing::repaints(&header, [&header]() { header.setTitle(text("x")); }));
    QVERIFY(testing::repaints(&header, [&header]() { header.setText(text("x")); }));
}

void tst_pagelistwidgetheader::fontComesFromTheComboBoxStyle()
{
    const testing::StyleFile file("CComboBox", 21);
    CPageListWidgetHeader header;
    QCOMPARE(header.font().pixelSize(), 21);
    QVERIFY(header.font().bold());
}

QTEST_MAIN(tst_pagelistwidgetheader)
#include "tst_pagelistwidgetheader.moc"
