#include "support/rows.h"
#include "support/stylefile.h"
#include "support/testing.h"

#include "widgets/toptitlearea.h"

#include <QApplication>
#include <QPainter>
#include <QVBoxLayout>

using testing::canvas;
using testing::render;

class tst_toptitlearea : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void titleIsStoredAndRepaints();
    void paintsTitleOnItsBaseline();
    void longTitleIsCutOff();
    void backgroundAndBorderAreUnderTheTitle();
    void fontComesFromItsOwnStyle();
    void styleIsOffWithoutAutoStyle();
    void sizeHintCoversTheTitle();
    void layoutGivesTheStripItsHeight();
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

void tst_toptitlearea::backgroundAndBorderAreUnderTheTitle()
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

void tst_toptitlearea::fontComesFromItsOwnStyle()
{
    const testing::StyleFile file("CTopTitleArea", 23);
    const testing::StyleFile base("CWidget", 24);
    CTopTitleArea area;
    QCOMPARE(area.font().pixelSize(), 23);
    QVERIFY(!area.getBackgroundColor().isValid());
}

void tst_toptitlearea::styleIsOffWithoutAutoStyle()
{
    CTopTitleArea area;
    area.setFont(testing::testFont(13));
    area.setAutoStyleEnabled(false);
    area.setWidgetStyle(testing::styleOf(Style::FieldAll, testing::testFont(22)));
    QCOMPARE(area.font().pixelSize(), 13);
}

void tst_toptitlearea::sizeHintCoversTheTitle()
{
    const char* const titles[] = {"", "T", "Measurement", "(gjpqy)"};
    for (int size = 8; size <= 20; size += 4) {
        for (size_t i = 0; i < sizeof titles / sizeof titles[0]; ++i) {
            const testing::InRow inRow(titles[i]);
            CTopTitleArea area;
            area.setFont(testing::testFont(size, true));
            area.setTitle(QLatin1String(titles[i]));
            const QSize hint = area.sizeHint();
            QVERIFY(hint.height() >= 30);
            QCOMPARE(area.minimumSizeHint().height(), hint.height());
            area.resize(hint + QSize(100, 100));
            QImage image = render(&area);
            QPainter(&image).fillRect(QRect(QPoint(), hint), Qt::magenta);
            CWIDGET_COMPARE_IMAGES(image, canvas(&area)); // nothing outside
        }
    }
}

void tst_toptitlearea::layoutGivesTheStripItsHeight()
{
    QWidget window;
    QVBoxLayout* column = new QVBoxLayout(&window);
    column->setContentsMargins(0, 0, 0, 0);
    CTopTitleArea* area = new CTopTitleArea;
    area->setTitle(QLatin1String("Measurement"));
    column->addWidget(area);
    column->addStretch();
    window.resize(300, 200);
    window.show();
    QVERIFY(testcompat::waitForWindow(&window));
    QCOMPARE(area->size(), QSize(300, 30));
    QVERIFY(testing::repaints(&window, [&] { area->setFont(testing::testFont(80)); }));
    QCOMPARE(area->height(), area->sizeHint().height());
    QVERIFY(area->height() > 30);
    const int width = area->sizeHint().width();
    area->setTitle(QLatin1String("Measurement of the pressure"));
    QVERIFY(area->sizeHint().width() > width);
    QCOMPARE(area->minimumSizeHint().width(), 0); // a title may be cut off
}

QTEST_MAIN(tst_toptitlearea)
#include "tst_toptitlearea.moc"
