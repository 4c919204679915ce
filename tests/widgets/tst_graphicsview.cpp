#include "support/testing.h"

#include "widgets/graphicsview.h"

#include <QApplication>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

using testing::canvas;

namespace
{

QImage renderViewport(CGraphicsView* view)
{
    QApplication::sendPostedEvents();
    return testing::render(view->viewport());
}

QImage expectedBackground(CGraphicsView* view, int width, const QColor& border,
                          const QColor& background)
{
    QImage image = canvas(view->viewport());
    QPainter painter(&image);
    if (background.isValid())
        painter.fillRect(image.rect(), background);
    if (width > 0) {
        painter.setPen(QPen(border, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(width / 2, width / 2, image.width() - width, image.height() - width);
    }
    return image;
}

} // namespace

class tst_graphicsview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void sizes();
    void borderWidthIsKeptAsGiven();
    void settersRepaint();
    void updateParmDoesNothing();
    void paintsBackgroundAndBorders();
    void invalidColors();
    void sceneIsDrawnOver();
    void scrollingPaintsTheWholeViewport();
};

void tst_graphicsview::defaults()
{
    CGraphicsView view;
    QCOMPARE(view.getBorderWidth(), 0);
    view.setFixedSize(60, 40);
    view.show();
    QVERIFY(testcompat::waitForWindow(&view));
    CWIDGET_COMPARE_IMAGES(renderViewport(&view),
                           expectedBackground(&view, 0, Qt::white, QColor(0xE0, 0xE0, 0xFF)));
    view.setBorderWidth(2);
    CWIDGET_COMPARE_IMAGES(renderViewport(&view),
                           expectedBackground(&view, 2, Qt::white, QColor(0xE0, 0xE0, 0xFF)));
}

void tst_graphicsview::sizes()
{
    CGraphicsView view;
    view.setSize(200, 100);
    QCOMPARE(view.minimumSize(), QSize(200, 100));
    QCOMPARE(view.maximumSize(), QSize(200, 100));
    view.setWidth(150);
    QCOMPARE(view.maximumSize(), QSize(150, 100));
    view.setHeight(90);
    QCOMPARE(view.minimumSize(), QSize(150, 90));
}

void tst_graphicsview::borderWidthIsKeptAsGiven()
{
    CGraphicsView view;
    view.setFixedSize(60, 40);
    view.show();
    QVERIFY(testcompat::waitForWindow(&view));
    view.setBorderColor(Qt::red);
    view.setBorderWidth(-3);
    QCOMPARE(view.getBorderWidth(), -3);
    CWIDGET_COMPARE_IMAGES(renderViewport(&view),
                           expectedBackground(&view, 0, Qt::red, QColor(0xE0, 0xE0, 0xFF)));
}

void tst_graphicsview::settersRepaint()
{
    CGraphicsView view;
    view.resize(60, 40);
    view.show();
    QVERIFY(testcompat::waitForWindow(&view));
    QWidget* viewport = view.viewport();
    QVERIFY(testing::repaints(viewport, [&view] { view.setBorderWidth(2); }));
    QVERIFY(testing::repaints(viewport, [&view] { view.setBorderColor(Qt::red); }));
    QVERIFY(testing::repaints(viewport, [&view] { view.setBackgroundColor(Qt::blue); }));
}

void tst_graphicsview::updateParmDoesNothing()
{
    CGraphicsView view;
    view.setFixedSize(60, 40);
    view.show();
    QVERIFY(testcompat::waitForWindow(&view));
    const QImage before = renderViewport(&view);
    view.updateParm(nullptr, 1024);
    CWIDGET_COMPARE_IMAGES(renderViewport(&view), before);
}

void tst_graphicsview::paintsBackgroundAndBorders()
{
    for (int width = 0; width < 6; ++width) {
        CGraphicsView view;
        view.setFixedSize(60, 40);
        view.setBackgroundColor(Qt::yellow);
        view.setBorderColor(Qt::red);
        view.setBorderWidth(width);
        view.show();
        QVERIFY(testcompat::waitForWindow(&view));
        CWIDGET_COMPARE_IMAGES(renderViewport(&view),
                               expectedBackground(&view, width, Qt::red, Qt::yellow));
    }
}

void tst_graphicsview::invalidColors()
{
    CGraphicsView view;
    view.setFixedSize(60, 40);
    view.setBackgroundColor(QColor());
    view.viewport()->setAutoFillBackground(false);
    view.show();
    QVERIFY(testcompat::waitForWindow(&view));
    CWIDGET_COMPARE_IMAGES(renderViewport(&view), expectedBackground(&view, 0, QColor(), QColor()));
    view.setBackgroundColor(Qt::green);
    view.setBorderColor(QColor());
    view.setBorderWidth(2);
    CWIDGET_COMPARE_IMAGES(renderViewport(&view),
                           expectedBackground(&view, 2, Qt::green, Qt::green));
}

void tst_graphicsview::sceneIsDrawnOver()
{
    QGraphicsScene scene(0, 0, 40, 20);
    QGraphicsRectItem* item = scene.addRect(0, 0, 1000, 1000, Qt::NoPen, QBrush(Qt::black));
    item->setPos(-500, -500);
    CGraphicsView view;
    view.setFixedSize(60, 40);
    view.setBorderColor(Qt::red);
    view.setBorderWidth(4);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setScene(&scene);
    view.show();
    QVERIFY(testcompat::waitForWindow(&view));
    CWIDGET_COMPARE_IMAGES(renderViewport(&view), canvas(view.viewport(), Qt::black));
}

namespace
{

/// Collects what a widget paints.
class PaintWatcher : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent*>(event)->region();
        return QObject::eventFilter(watched, event);
    }

    QRegion region;
};

} // namespace

/// The border does not move with the scene, so what Qt would copy is wrong.
void tst_graphicsview::scrollingPaintsTheWholeViewport()
{
    QGraphicsScene scene(0, 0, 400, 400);
    CGraphicsView view;
    view.setFixedSize(100, 80);
    view.setBorderWidth(6);
    view.setScene(&scene);
    view.show();
    QVERIFY(testcompat::waitForWindow(&view));
    QCoreApplication::processEvents();
    PaintWatcher watcher;
    view.viewport()->installEventFilter(&watcher);
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->value() + 5);
    for (int i = 0; i < 50 && watcher.region.isEmpty(); ++i)
        QTest::qWait(1);
    QCOMPARE(watcher.region.boundingRect(), view.viewport()->rect());
    QCOMPARE(view.viewportUpdateMode(), QGraphicsView::FullViewportUpdate);
}

QTEST_MAIN(tst_graphicsview)
#include "tst_graphicsview.moc"
