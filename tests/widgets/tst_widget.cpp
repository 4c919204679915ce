#include "support/stylefile.h"
#include "support/testing.h"

#include "widgets/widget.h"

#include <QApplication>
#include <QMetaMethod>

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
