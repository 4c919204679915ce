#include "support/testing.h"

#include "widgets/toptitlearea.h"

#include <QApplication>
#include <QPainter>

using testing::canvas;
using testing::render;

class tst_toptitlearea : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void titleIsStoredAndRepaints();
    void paintsTitleOnItsBaseline();
    void longTitleIsCutOff();
    void groundAndBorderAreUnderTheTitle();
};

void tst_toptitlearea::titleIsStoredAndRepaints()
{
    CTopTitleArea area;
    QVERIFY(area.title().isEmpty());
    area.resize(100, 30);
    area.show();
    QVERIFY(testcompat::waitForWindow(&area));
    QVERIFY(testing::repaints(&area, [&area] { area.setTitle(QLatin1String("Title")); }));
    QCOMPARE(area.title(), QString::fromLatin1("Title"));
}

void tst_toptitlearea::paintsTitleOnItsBaseline()
{
    CTopTitleArea area;
    area.setSize(200, 30);
    area.setFont(testing::testFont(16, true));
    CWIDGET_COMPARE_IMAGES(render(&area), canvas(&area));
    area.setTitle(QLatin1String("Measurement"));
    QImage expected = canvas(&area);
    QPainter painter(&expected);
    painter.setPen(area.palette().color(QPalette::WindowText));
    painter.setFont(area.font());
    painter.drawText(QPointF(20.0, 20.0), QLatin1String("Measurement"));
    painter.end();
    CWIDGET_COMPARE_IMAGES(render(&area), expected);
    QVERIFY(expected != canvas(&area));
}

void tst_toptitlearea::longTitleIsCutOff()
{
    CTopTitleArea area;
    area.setSize(50, 30);
    area.setFont(testing::testFont(16));
    const QString title = QString(100, QLatin1Char('M'));
    area.setTitle(title);
    QImage expected = canvas(&area);
    QPainter painter(&expected);
    painter.setPen(area.palette().color(QPalette::WindowText));
    painter.setFont(area.font());
    painter.drawText(QPointF(20.0, 20.0), title);
    painter.end();
    CWIDGET_COMPARE_IMAGES(render(&area), expected);
}

void tst_toptitlearea::groundAndBorderAreUnderTheTitle()
{
    CTopTitleArea area;
    area.setSize(60, 30);
    area.setFont(testing::testFont(16));
    area.setBackgroundColor(Qt::white);
    area.setBorderColor(Qt::red);
    area.setBorderWidth(26);
    area.setTitle(QLatin1String("T"));
    QImage expected = canvas(&area, Qt::white);
    QPainter painter(&expected);
    painter.setPen(QPen(QColor(Qt::red), 26, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(13, 13, 34, 4);
    painter.setPen(area.palette().color(QPalette::WindowText));
    painter.setFont(area.font());
    painter.drawText(QPointF(20.0, 20.0), QLatin1String("T"));
    painter.end();
    CWIDGET_COMPARE_IMAGES(render(&area), expected);
}

QTEST_MAIN(tst_toptitlearea)
#include "tst_toptitlearea.moc"
