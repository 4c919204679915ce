#include "support/stylefile.h"
#include "support/testing.h"

#include "widgets/widget.h"

#include <QApplication>
#include <QMetaMethod>
#include <QPainter>

using testing::canvas;
using testing::render;
using testing::styleOf;
using testing::testFont;

namespace
{

/// Writes down the virtual calls that arrive.
class Recorder : public CWidget
{
    Q_OBJECT

public:
    explicit Recorder(QWidget* parent = nullptr) : CWidget(parent)
    {
    }

    void setSize(int width, int height) override
    {
        calls.append(QString::fromLatin1("setSize %1 %2").arg(width).arg(height));
    }

    void translate() override
    {
        calls.append(QLatin1String("translate"));
        CWidget::translate();
    }

    void updateWidgetStyle() override
    {
        calls.append(QLatin1String("updateWidgetStyle"));
        CWidget::updateWidgetStyle();
    }

    using CWidget::setSize;

    QStringList calls;
};

QPixmap checkered(int width, int height)
{
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::yellow);
    QPainter painter(&pixmap);
    painter.fillRect(0, 0, width / 2, height / 2, Qt::blue);
    return pixmap;
}

void paintBorder(QImage* image, int width, const QColor& color)
{
    QPen pen(color);
    pen.setWidth(width);
    pen.setJoinStyle(Qt::MiterJoin);
    QPainter painter(image);
    painter.setPen(pen);
    painter.drawRect(width / 2, width / 2, image->width() - width, image->height() - width);
}

} // namespace

class tst_widget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void typeCode();
    void metaObjectHasOnlyTheTwoSlots();
    void lockAndUnlock();
    void loadAndSaveReturnTrue();
    void virtualsThatDoNothing();
    void sizes();
    void setSizeOfSizeGoesThroughTheOther();
    void settersStoreAndRepaint();
    void applyRepaints();
    void borderWidthIsNeverNegative();
    void transparencyRange();
    void transparentEnabled();
    void paintsNothingByItself();
    void paintsFillWithAlpha();
    void paintsPixmapUnscaledOverFill();
    void paintsPixmapLargerThanTheWidget();
    void paintsBorders();
    void borderTakesTheBackgroundColor();
    void borderWithoutAnyColorIsDrawn();
    void transparentFillStillHasItsBorder();
    void stagesCoverEachOther();
    void setWidgetStyleTakesTheFontOfFieldAll();
    void setWidgetStyleIgnoresOtherFieldsAndColors();
    void setWidgetStyleLaterEntryWins();
    void setWidgetStyleIsOffWithoutAutoStyle();
    void constructorDoesNotStyle();
    void updateWidgetStyleByClassName();
    void updateWidgetStyleReachesChildren();
    void updateWidgetStyleStopsAtPlainWidgets();
    void translateReachesChildren();
};

void tst_widget::defaults()
{
    CWidget widget;
    QCOMPARE(widget.getBorderWidth(), 0);
    QVERIFY(!widget.getBackgroundColor().isValid());
    QVERIFY(!widget.getBorderColor().isValid());
    QVERIFY(widget.getBackground().isNull());
    QVERIFY(widget.isAutoStyleEnabled());
    QVERIFY(!widget.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(widget.windowFlags() & ~Qt::WindowType_Mask,
             QWidget().windowFlags() & ~Qt::WindowType_Mask);
    QVERIFY(widget.initialize());
}

void tst_widget::typeCode()
{
    QCOMPARE(CWidget().type(), 0x10063u);
    QCOMPARE(CWidget().type(), 65635u);
    QCOMPARE(Recorder().type(), 65635u);
}

void tst_widget::metaObjectHasOnlyTheTwoSlots()
{
    const QMetaObject& meta = CWidget::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("CWidget"));
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    QVERIFY(meta.indexOfSlot("lockWidget()") >= meta.methodOffset());
    QVERIFY(meta.indexOfSlot("unlockWidget()") >= meta.methodOffset());
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
}

void tst_widget::lockAndUnlock()
{
    CWidget widget;
    widget.lockWidget();
    QVERIFY(!widget.isEnabled());
    widget.lockWidget();
    QVERIFY(!widget.isEnabled());
    widget.unlockWidget();
    QVERIFY(widget.isEnabled());
}

void tst_widget::loadAndSaveReturnTrue()
{
    CWidget widget;
    QVERIFY(widget.load(QLatin1String("x")));
    QVERIFY(widget.save(QLatin1String("y")));
    QVERIFY(widget.save(QString()));
}

void tst_widget::virtualsThatDoNothing()
{
    CWidget widget;
    widget.setSize(20, 10);
    const QImage before = render(&widget);
    widget.updateParm(nullptr, 1024);
    widget.clientWndStateChanged(3);
    CWIDGET_COMPARE_IMAGES(render(&widget), before);
    QCOMPARE(widget.size(), QSize(20, 10));
    QVERIFY(widget.isEnabled());
}

void tst_widget::sizes()
{
    CWidget widget;
    widget.setSize(120, 40);
    QCOMPARE(widget.minimumSize(), QSize(120, 40));
    QCOMPARE(widget.maximumSize(), QSize(120, 40));
    widget.setWidth(80);
    QCOMPARE(widget.size(), QSize(80, 40));
    QCOMPARE(widget.minimumSize(), QSize(80, 40));
    widget.setHeight(30);
    QCOMPARE(widget.maximumSize(), QSize(80, 30));
    widget.setFixedSize(11, 12);
    QCOMPARE(widget.minimumSize(), QSize(11, 12));
    widget.setFixedSize(QSize(21, 22));
    QCOMPARE(widget.maximumSize(), QSize(21, 22));
}

void tst_widget::setSizeOfSizeGoesThroughTheOther()
{
    Recorder widget;
    static_cast<CWidget&>(widget).setSize(QSize(7, 9));
    QCOMPARE(widget.calls, QStringList() << QLatin1String("setSize 7 9"));
}

void tst_widget::settersStoreAndRepaint()
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

void tst_widget::applyRepaints()
{
    CWidget widget;
    widget.resize(40, 40);
    widget.show();
    QVERIFY(testcompat::waitForWindow(&widget));
    QVERIFY(testing::repaints(&widget, [&widget] { widget.apply(); }));
}

void tst_widget::borderWidthIsNeverNegative()
{
    CWidget widget;
    widget.setSize(30, 20);
    widget.setBorderColor(Qt::red);
    widget.setBorderWidth(-5);
    QCOMPARE(widget.getBorderWidth(), 0);
    CWIDGET_COMPARE_IMAGES(render(&widget), canvas(&widget));
}

void tst_widget::transparencyRange()
{
    CWidget widget;
    widget.setBackgroundColor(Qt::red);
    const int ignored[] = {256, -1, 1000, -256};
    for (size_t i = 0; i < sizeof ignored / sizeof ignored[0]; ++i) {
        widget.setTransparency(ignored[i]);
        QCOMPARE(widget.getBackgroundColor().alpha(), 255);
    }
    const int taken[] = {0, 1, 128, 254, 255};
    for (size_t i = 0; i < sizeof taken / sizeof taken[0]; ++i) {
        widget.setTransparency(taken[i]);
        QCOMPARE(widget.getBackgroundColor().alpha(), taken[i]);
        QCOMPARE(widget.getBackgroundColor().rgb(), QColor(Qt::red).rgb());
    }
}

void tst_widget::transparentEnabled()
{
    CWidget widget;
    widget.setTransparentEnabled(true);
    QVERIFY(widget.testAttribute(Qt::WA_TranslucentBackground));
    widget.setTransparentEnabled(false);
    QVERIFY(!widget.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(static_cast<int>(Qt::WA_TranslucentBackground), 120);
}

void tst_widget::paintsNothingByItself()
{
    CWidget widget;
    widget.setSize(30, 20);
    CWIDGET_COMPARE_IMAGES(render(&widget), canvas(&widget));
}

void tst_widget::paintsFillWithAlpha()
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

void tst_widget::paintsPixmapUnscaledOverFill()
{
    CWidget widget;
    widget.setSize(30, 20);
    widget.setBackgroundColor(Qt::darkGreen);
    widget.setBackground(checkered(10, 8));
    QImage expected = canvas(&widget, Qt::darkGreen);
    QPainter(&expected).drawPixmap(0, 0, checkered(10, 8));
    CWIDGET_COMPARE_IMAGES(render(&widget), expected);
}

void tst_widget::paintsPixmapLargerThanTheWidget()
{
    CWidget widget;
    widget.setSize(30, 20);
    widget.setBackground(checkered(100, 90));
    QImage expected = canvas(&widget);
    QPainter(&expected).drawPixmap(0, 0, checkered(100, 90));
    CWIDGET_COMPARE_IMAGES(render(&widget), expected);
}

void tst_widget::paintsBorders()
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

void tst_widget::borderTakesTheBackgroundColor()
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

void tst_widget::borderWithoutAnyColorIsDrawn()
{
    CWidget widget;
    widget.setSize(100, 40);
    widget.setBorderWidth(2);
    QImage expected = canvas(&widget);
    paintBorder(&expected, 2, QColor());
    CWIDGET_COMPARE_IMAGES(render(&widget), expected);
    QVERIFY(render(&widget) != canvas(&widget));
}

void tst_widget::transparentFillStillHasItsBorder()
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

void tst_widget::stagesCoverEachOther()
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

void tst_widget::setWidgetStyleTakesTheFontOfFieldAll()
{
    CWidget widget;
    widget.setWidgetStyle(styleOf(Style::FieldAll, testFont(17, true)));
    QCOMPARE(widget.font().pixelSize(), 17);
    QVERIFY(widget.font().bold());
    QCOMPARE(widget.font().family(), QString::fromLatin1("Arial"));
}

void tst_widget::setWidgetStyleIgnoresOtherFieldsAndColors()
{
    CWidget widget;
    const QFont before = widget.font();
    WidgetStyle style = styleOf(Style::FieldName, testFont(17));
    style.styles.append(styleOf(Style::FieldValue, testFont(18)).styles);
    style.styles[0].background = Qt::red;
    widget.setWidgetStyle(style);
    QCOMPARE(widget.font(), before);
    style = styleOf(Style::FieldAll, testFont(17));
    style.styles[0].background = Qt::red;
    style.styles[0].foreground = Qt::green;
    widget.setWidgetStyle(style);
    QCOMPARE(widget.font().pixelSize(), 17);
    QVERIFY(!widget.getBackgroundColor().isValid());
    QVERIFY(!widget.getBorderColor().isValid());
    widget.setWidgetStyle(WidgetStyle());
    QCOMPARE(widget.font().pixelSize(), 17);
}

void tst_widget::setWidgetStyleLaterEntryWins()
{
    CWidget widget;
    WidgetStyle style = styleOf(Style::FieldAll, testFont(17));
    style.styles.append(styleOf(Style::FieldAll, testFont(21)).styles);
    widget.setWidgetStyle(style);
    QCOMPARE(widget.font().pixelSize(), 21);
}

void tst_widget::setWidgetStyleIsOffWithoutAutoStyle()
{
    CWidget widget;
    const QFont before = widget.font();
    widget.setAutoStyleEnabled(false);
    widget.setWidgetStyle(styleOf(Style::FieldAll, testFont(17)));
    QCOMPARE(widget.font(), before);
    widget.setAutoStyleEnabled(true);
    widget.setWidgetStyle(styleOf(Style::FieldAll, testFont(17)));
    QCOMPARE(widget.font().pixelSize(), 17);
}

void tst_widget::constructorDoesNotStyle()
{
    const testing::StyleFile file("CWidget", 33);
    CWidget widget;
    QVERIFY(widget.font().pixelSize() != 33);
}

void tst_widget::updateWidgetStyleByClassName()
{
    const testing::StyleFile file("CWidget", 33);
    const testing::StyleFile derived("Recorder", 34);
    CWidget widget;
    widget.updateWidgetStyle();
    QCOMPARE(widget.font().pixelSize(), 33);
    QVERIFY(!widget.getBackgroundColor().isValid());
    Recorder recorder;
    recorder.updateWidgetStyle();
    QCOMPARE(recorder.font().pixelSize(), 34);
    CWidget unstyled;
    unstyled.setAutoStyleEnabled(false);
    unstyled.updateWidgetStyle();
    QVERIFY(unstyled.font().pixelSize() != 33);
}

void tst_widget::updateWidgetStyleReachesChildren()
{
    const testing::StyleFile file("CWidget", 33);
    CWidget widget;
    widget.setAutoStyleEnabled(false);
    CWidget* child = new CWidget(&widget);
    Recorder* grandchild = new Recorder(child);
    CWidget* last = new CWidget(grandchild);
    widget.updateWidgetStyle();
    QVERIFY(widget.font().pixelSize() != 33);
    QCOMPARE(child->font().pixelSize(), 33);
    QCOMPARE(grandchild->calls, QStringList() << QLatin1String("updateWidgetStyle"));
    QCOMPARE(last->font().pixelSize(), 33);
}

void tst_widget::updateWidgetStyleStopsAtPlainWidgets()
{
    CWidget widget;
    QWidget* plain = new QWidget(&widget);
    Recorder* below = new Recorder(plain);
    Recorder* beside = new Recorder(&widget);
    widget.updateWidgetStyle();
    QCOMPARE(below->calls, QStringList());
    QCOMPARE(beside->calls, QStringList() << QLatin1String("updateWidgetStyle"));
}

void tst_widget::translateReachesChildren()
{
    CWidget widget;
    Recorder* child = new Recorder(&widget);
    Recorder* grandchild = new Recorder(child);
    Recorder* unreached = new Recorder(new QWidget(&widget));
    new QObject(&widget);
    widget.translate();
    QCOMPARE(child->calls, QStringList() << QLatin1String("translate"));
    QCOMPARE(grandchild->calls, QStringList() << QLatin1String("translate"));
    QCOMPARE(unreached->calls, QStringList());
}

QTEST_MAIN(tst_widget)
#include "tst_widget.moc"
