#include "support/rows.h"
#include "support/testing.h"

#include "widgets/widget.h"

#include <QPainter>

using testing::canvas;
using testing::render;

namespace
{

QPixmap checkered(int width, int height)
{
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::yellow);
    QPainter painter(&pixmap);
    painter.fillRect(0, 0, width / 2, height / 2, Qt::blue);
    return pixmap;
}

/// Counts the parts in which it is painted.
class CountedGround : public CWidget
{
public:
    CountedGround() : m_parts(0)
    {
    }

    int parts() const
    {
        return m_parts;
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        m_parts = event->region().rectCount();
        CWidget::paintEvent(event);
    }

private:
    int m_parts;
};

/// An application's own ground that leaves its edge to Qt.
class OwnGround : public CWidget
{
protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect().adjusted(5, 5, -5, -5), Qt::green);
    }
};

void addChild(QWidget* parent, const QRect& rect)
{
    QWidget* const child = new QWidget(parent);
    child->setGeometry(rect);
    child->setAutoFillBackground(true);
    child->setPalette(QPalette(Qt::blue));
}

void paintBorder(QImage* image, int width, const QColor& color, bool isSmooth = false)
{
    QPen pen(color);
    pen.setWidth(width);
    pen.setJoinStyle(Qt::MiterJoin);
    QPainter painter(image);
    painter.setRenderHint(QPainter::Antialiasing, isSmooth);
    painter.setPen(pen);
    painter.drawRect(width / 2, width / 2, image->width() - width, image->height() - width);
}

} // namespace

class tst_widget_painting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settersStoreAndRepaint();
    void applyRepaints();
    void borderWidthIsNeverNegative();
    void transparencyRange();
    void transparentEnabled();
    void paintsNothingByItself();
    void paintsFillWithAlpha();
    void paintsFillBetweenChildren();
    void ownPaintingKeepsTheGroundOfWindows();
    void paintsPixmapUnscaledOverFill();
    void paintsPixmapLargerThanTheWidget();
    void paintsBorders();
    void paintsBordersOfAnySize();
    void smoothBorder();
    void borderTakesTheBackgroundColor();
    void borderWithoutAnyColorIsDrawn();
    void transparentFillStillHasItsBorder();
    void stagesCoverEachOther();
};

void tst_widget_painting::settersStoreAndRepaint()
{
    CWidget widget;
    widget.resize(40, 40);
    widget.show();
    QVERIFY(testcompat::waitForWindow(&widget));
    QVERIFY(!testing::repaints(&widget, [] {}));
    QVERIFY(testing::repaints(&widget, [&widget] { widget.setBackgroundColor(Qt::red); }));
    QVERIFY(testing::repaints(&widget, [&widget] { widget.setBorderColor(Qt::green); }));
    QVERIFY(testing::repaints(&widget, [&widget] { widget.setBackground(checkered(4, 4)); }));
    QVERIFY(testing::repaints(&widget, [&widget] { widget.setBorderWidth(3); }));
    QVERIFY(testing::repaints(&widget, [&widget] { widget.setTransparency(100); }));
    QVERIFY(!testing::repaints(&widget, [&widget] { widget.setTransparency(256); }));
    QVERIFY(testing::repaints(&widget, [&widget] { widget.setAutoStyleEnabled(false); }));
    QColor red(Qt::red);
    red.setAlpha(100);
    QCOMPARE(widget.getBackgroundColor(), red);
    QCOMPARE(widget.getBorderColor(), QColor(Qt::green));
    QCOMPARE(widget.getBackground().size(), QSize(4, 4));
    QCOMPARE(widget.getBorderWidth(), 3);
    QVERIFY(!widget.isAutoStyleEnabled());
}

void tst_widget_painting::applyRepaints()
{
    CWidget widget;
    widget.resize(40, 40);
    widget.show();
    QVERIFY(testcompat::waitForWindow(&widget));
    QVERIFY(testing::repaints(&widget, [&widget] { widget.apply(); }));
}

void tst_widget_painting::borderWidthIsNeverNegative()
{
    CWidget widget;
    widget.setSize(30, 20);
    widget.setBorderColor(Qt::red);
    widget.setBorderWidth(-5);
    QCOMPARE(widget.getBorderWidth(), 0);
    CWIDGET_COMPARE_IMAGES(render(&widget), canvas(&widget));
}

void tst_widget_painting::transparencyRange()
{
    CWidget widget;
    widget.setBackgroundColor(Qt::red);
    const int ignored[] = {256, -1, 1000, -256};
    for (size_t i = 0; i < sizeof ignored / sizeof ignored[0]; ++i) {
        const testing::InRow inRow(i);
        widget.setTransparency(ignored[i]);
        QCOMPARE(widget.getBackgroundColor().alpha(), 255);
    }
    const int taken[] = {0, 1, 128, 254, 255};
    for (size_t i = 0; i < sizeof taken / sizeof taken[0]; ++i) {
        const testing::InRow inRow(i);
        widget.setTransparency(taken[i]);
        QCOMPARE(widget.getBackgroundColor().alpha(), taken[i]);
        QCOMPARE(widget.getBackgroundColor().rgb(), QColor(Qt::red).rgb());
    }
}

void tst_widget_painting::transparentEnabled()
{
    CWidget widget;
    widget.setTransparentEnabled(true);
    QVERIFY(widget.testAttribute(Qt::WA_TranslucentBackground));
    widget.setTransparentEnabled(false);
    QVERIFY(!widget.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(static_cast<int>(Qt::WA_TranslucentBackground), 120);
}

void tst_widget_painting::paintsNothingByItself()
{
    CWidget widget;
    widget.setSize(30, 20);
    CWIDGET_COMPARE_IMAGES(render(&widget), canvas(&widget));
}

void tst_widget_painting::paintsFillWithAlpha()
{
    CWidget widget;
    widget.setSize(30, 20);
    widget.setBackgroundColor(QColor(0, 128, 255));
    CWIDGET_COMPARE_IMAGES(render(&widget), canvas(&widget, QColor(0, 128, 255)));

    widget.setTransparency(100);
    QImage expected = canvas(&widget);
    const QColor color(0, 128, 255, 100);
    QPainter painter(&expected);
    painter.setPen(color);
    painter.setBrush(color);
    painter.drawRect(0, 0, 30, 20);
    painter.end();
    CWIDGET_COMPARE_IMAGES(render(&widget), expected);
}

/// Children that hide the ground leave many parts of it, and none is left out. The picture and the
/// border are not cut.
void tst_widget_painting::paintsFillBetweenChildren()
{
    const QRect places[] = {QRect(4, 4, 8, 5), QRect(16, 4, 10, 5), QRect(4, 12, 30, 3)};
    CountedGround ground;
    ground.setSize(40, 20);
    ground.setBackgroundColor(Qt::red);
    ground.setBackground(checkered(6, 10));
    ground.setBorderColor(Qt::green);
    ground.setBorderWidth(2);
    QImage expected = canvas(&ground, Qt::red);
    QPainter(&expected).drawPixmap(0, 0, checkered(6, 10));
    paintBorder(&expected, 2, Qt::green);
    for (size_t i = 0; i < sizeof places / sizeof places[0]; ++i) {
        addChild(&ground, places[i]);
        QPainter(&expected).fillRect(places[i], Qt::blue);
    }
    ground.show();
    QVERIFY(testcompat::waitForWindow(&ground));
    QTRY_VERIFY(ground.parts() > 1);
    CWIDGET_COMPARE_IMAGES(testcompat::grabWindow(&ground), expected);
}

/// Qt fills a window under what an application paints on it, however often that is done.
void tst_widget_painting::ownPaintingKeepsTheGroundOfWindows()
{
    OwnGround ground;
    ground.setSize(40, 20);
    ground.setBackgroundColor(Qt::red);
    ground.setPalette(QPalette(Qt::black, Qt::blue));
    QImage expected = canvas(&ground, ground.palette().color(QPalette::Window));
    QPainter(&expected).fillRect(5, 5, 30, 10, Qt::green);
    for (int i = 0; i < 3; ++i) {
        const testing::InRow inRow(i);
        QImage image = canvas(&ground);
        ground.render(&image, QPoint(), QRegion(), QWidget::DrawWindowBackground);
        CWIDGET_COMPARE_IMAGES(image, expected);
    }
}

void tst_widget_painting::paintsPixmapUnscaledOverFill()
{
    CWidget widget;
    widget.setSize(30, 20);
    widget.setBackgroundColor(Qt::darkGreen);
    widget.setBackground(checkered(10, 8));
    QImage expected = canvas(&widget, Qt::darkGreen);
    QPainter(&expected).drawPixmap(0, 0, checkered(10, 8));
    CWIDGET_COMPARE_IMAGES(render(&widget), expected);
}

void tst_widget_painting::paintsPixmapLargerThanTheWidget()
{
    CWidget widget;
    widget.setSize(30, 20);
    widget.setBackground(checkered(100, 90));
    QImage expected = canvas(&widget);
    QPainter(&expected).drawPixmap(0, 0, checkered(100, 90));
    CWIDGET_COMPARE_IMAGES(render(&widget), expected);
}

void tst_widget_painting::paintsBorders()
{
    for (int width = 1; width <= 7; ++width) {
        CWidget widget;
        widget.setSize(100, 40);
        widget.setBorderColor(Qt::red);
        widget.setBorderWidth(width);
        QImage expected = canvas(&widget);
        paintBorder(&expected, width, Qt::red);
        const QImage actual = render(&widget);
        CWIDGET_COMPARE_IMAGES(actual, expected);
        // All of the pen lies inside, and the inside is free.
        QCOMPARE(actual.pixel(0, 0), QColor(Qt::red).rgb());
        QCOMPARE(actual.pixel(99, 39), QColor(Qt::red).rgb());
        QCOMPARE(actual.pixel(width, width), QColor(Qt::magenta).rgb());
        QCOMPARE(actual.pixel(99 - width, 39 - width), QColor(Qt::magenta).rgb());
    }
}

/// Also where a border leaves no inside, or no more than a pixel.
void tst_widget_painting::paintsBordersOfAnySize()
{
    CWidget widget;
    widget.setBorderColor(Qt::red);
    for (int edge = 1; edge <= 21; ++edge) {
        for (int width = 1; width <= 12; ++width) {
            widget.setSize(edge, 22 - edge);
            widget.setBorderWidth(width);
            QImage expected = canvas(&widget);
            paintBorder(&expected, width, Qt::red);
            const QString found = testing::difference(render(&widget), expected);
            QVERIFY2(
                found.isEmpty(),
                qPrintable(QString::fromLatin1("%1 of %2: %3").arg(width).arg(edge).arg(found)));
        }
    }
}

/// A painter that smooths what it draws does so with a border, too.
void tst_widget_painting::smoothBorder()
{
    CWidget widget;
    widget.setSize(30, 20);
    widget.setBorderColor(Qt::red);
    widget.setBorderWidth(3);
    QImage image = canvas(&widget);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    widget.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    painter.end();
    QImage expected = canvas(&widget);
    paintBorder(&expected, 3, Qt::red, true);
    CWIDGET_COMPARE_IMAGES(image, expected);
}

void tst_widget_painting::borderTakesTheBackgroundColor()
{
    CWidget widget;
    widget.setSize(100, 40);
    widget.setBackgroundColor(Qt::red);
    widget.setTransparency(128);
    widget.setBorderWidth(4);
    QColor color(Qt::red);
    color.setAlpha(128);
    QImage expected = canvas(&widget);
    QPainter painter(&expected);
    painter.setPen(color);
    painter.setBrush(color);
    painter.drawRect(0, 0, 100, 40);
    painter.end();
    paintBorder(&expected, 4, color);
    CWIDGET_COMPARE_IMAGES(render(&widget), expected);
}

void tst_widget_painting::borderWithoutAnyColorIsDrawn()
{
    CWidget widget;
    widget.setSize(100, 40);
    widget.setBorderWidth(2);
    QImage expected = canvas(&widget);
    paintBorder(&expected, 2, QColor());
    CWIDGET_COMPARE_IMAGES(render(&widget), expected);
    QVERIFY(render(&widget) != canvas(&widget));
}

void tst_widget_painting::transparentFillStillHasItsBorder()
{
    CWidget widget;
    widget.setSize(100, 40);
    widget.setBackgroundColor(Qt::green);
    widget.setBorderColor(Qt::red);
    widget.setBorderWidth(3);
    widget.setTransparency(0);
    QImage expected = canvas(&widget);
    paintBorder(&expected, 3, Qt::red);
    CWIDGET_COMPARE_IMAGES(render(&widget), expected);
}

void tst_widget_painting::stagesCoverEachOther()
{
    CWidget widget;
    widget.setSize(30, 20);
    widget.setBackgroundColor(Qt::green);
    widget.setBackground(checkered(10, 8));
    widget.setBorderColor(Qt::red);
    widget.setBorderWidth(2);
    QImage expected = canvas(&widget, Qt::green);
    QPainter(&expected).drawPixmap(0, 0, checkered(10, 8));
    paintBorder(&expected, 2, Qt::red);
    CWIDGET_COMPARE_IMAGES(render(&widget), expected);
}

QTEST_MAIN(tst_widget_painting)
#include "tst_widget_painting.moc"
