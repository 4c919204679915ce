#include "support/testing.h"

#include "widgets/widget.h"
#include "widgets/widgetstack.h"

#include <QApplication>

namespace
{

KQWidgetStack* stack()
{
    return KQWidgetStack::instance();
}

/// A panel with three managed screens, none of them shown.
struct Panel {
    Panel() : a(&window), b(&window), c(&window)
    {
        CWidget* const screens[] = {&a, &b, &c};
        for (int i = 0; i < 3; ++i) {
            screens[i]->setAutoManagment(true);
            screens[i]->hide();
        }
        window.resize(100, 100);
        window.show();
    }

    ~Panel()
    {
        stack()->popAll();
    }

    QWidget window;
    CWidget a;
    CWidget b;
    CWidget c;
};

} // namespace

class tst_widgetstack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void oneInstance();
    void emptyStack();
    void pushChecksNothing();
    void plainWidgetsAreNotManaged();
    void showingPushesAndHidesTheOneBefore();
    void popShowsTheOneBelowWithoutPushingIt();
    void showAfterPopIsRecordedAgain();
    void hidingAndShowingTheTopChangesNothing();
    void showingALowerOnePushesItAgain();
    void popAllHidesAll();
    void popAllLeavesWhatIsPushedMeanwhile();
    void popOfANullEntry();
    void popOntoANullEntry();
    void popOntoAPlainWidget();
    void switchingManagementOffAndOn();
};

// A test may leave the stack waiting for the show of a managed widget; every test starts without.
void tst_widgetstack::init()
{
    CWidget widget;
    widget.setAutoManagment(true);
    widget.show();
    stack()->popAll();
    QCOMPARE(stack()->size(), 0);
}

void tst_widgetstack::oneInstance()
{
    QVERIFY(stack());
    QCOMPARE(KQWidgetStack::instance(), stack());
}

void tst_widgetstack::emptyStack()
{
    QCOMPARE(stack()->size(), 0);
    QVERIFY(!stack()->top());
    QVERIFY(!stack()->pop());
    QCOMPARE(stack()->popAll(), 0);
    QCOMPARE(stack()->size(), 0);
}

void tst_widgetstack::pushChecksNothing()
{
    QWidget widget;
    stack()->push(&widget);
    stack()->push(&widget);
    stack()->push(nullptr);
    QCOMPARE(stack()->size(), 3);
    QVERIFY(!stack()->top());
    QVERIFY(!widget.isVisible());
    QCOMPARE(stack()->popAll(), 3);
    QCOMPARE(stack()->size(), 0);
}

void tst_widgetstack::plainWidgetsAreNotManaged()
{
    CWidget widget;
    widget.show();
    QCOMPARE(stack()->size(), 0);
}

void tst_widgetstack::showingPushesAndHidesTheOneBefore()
{
    Panel panel;
    panel.a.show();
    QCOMPARE(stack()->size(), 1);
    QCOMPARE(stack()->top(), static_cast<QWidget*>(&panel.a));
    panel.b.show();
    QCOMPARE(stack()->size(), 2);
    QCOMPARE(stack()->top(), static_cast<QWidget*>(&panel.b));
    QVERIFY(!panel.a.isVisible());
    QVERIFY(panel.b.isVisible());
}

void tst_widgetstack::popShowsTheOneBelowWithoutPushingIt()
{
    Panel panel;
    panel.a.show();
    panel.b.show();
    QCOMPARE(stack()->pop(), static_cast<QWidget*>(&panel.b));
    QCOMPARE(stack()->size(), 1);
    QCOMPARE(stack()->top(), static_cast<QWidget*>(&panel.a));
    QVERIFY(panel.a.isVisible());
    QVERIFY(!panel.b.isVisible());
    QCOMPARE(stack()->pop(), static_cast<QWidget*>(&panel.a));
    QVERIFY(!panel.a.isVisible());
    QCOMPARE(stack()->size(), 0);
}

void tst_widgetstack::showAfterPopIsRecordedAgain()
{
    Panel panel;
    panel.a.show();
    panel.b.show();
    stack()->pop();
    panel.c.show();
    QCOMPARE(stack()->size(), 2);
    QCOMPARE(stack()->top(), static_cast<QWidget*>(&panel.c));
    QVERIFY(!panel.a.isVisible());
}

void tst_widgetstack::hidingAndShowingTheTopChangesNothing()
{
    Panel panel;
    panel.a.show();
    panel.b.show();
    panel.b.hide();
    panel.b.show();
    QCOMPARE(stack()->size(), 2);
    QCOMPARE(stack()->top(), static_cast<QWidget*>(&panel.b));
    QVERIFY(!panel.a.isVisible());
}

void tst_widgetstack::showingALowerOnePushesItAgain()
{
    Panel panel;
    panel.a.show();
    panel.b.show();
    panel.a.show();
    QCOMPARE(stack()->size(), 3);
    QCOMPARE(stack()->top(), static_cast<QWidget*>(&panel.a));
    QVERIFY(!panel.b.isVisible());
}

void tst_widgetstack::popAllHidesAll()
{
    Panel panel;
    panel.a.show();
    panel.b.show();
    panel.c.show();
    QCOMPARE(stack()->popAll(), 3);
    QCOMPARE(stack()->size(), 0);
    QVERIFY(!panel.a.isVisible());
    QVERIFY(!panel.b.isVisible());
    QVERIFY(!panel.c.isVisible());
    panel.a.show();
    QCOMPARE(stack()->size(), 1);
}

void tst_widgetstack::popAllLeavesWhatIsPushedMeanwhile()
{
    /// Pushes another widget as soon as it is hidden.
    class Pusher : public QWidget
    {
    public:
        Pusher(QWidget* parent, QWidget* next) : QWidget(parent), m_next(next)
        {
        }

    protected:
        void hideEvent(QHideEvent*) override
        {
            stack()->push(m_next);
        }

    private:
        QWidget* m_next;
    };
    Panel panel;
    Pusher pusher(&panel.window, &panel.c);
    panel.a.show();
    panel.a.hide(); // so that it is shown again
    pusher.show();
    stack()->push(&pusher);
    QCOMPARE(stack()->popAll(), 2);
    QCOMPARE(stack()->size(), 1);
    QCOMPARE(stack()->pop(), static_cast<QWidget*>(&panel.a));
    QCOMPARE(stack()->size(), 0);
}

void tst_widgetstack::popOfANullEntry()
{
    Panel panel;
    panel.a.show();
    stack()->push(nullptr);
    QVERIFY(!stack()->pop());
    QCOMPARE(stack()->size(), 1);
    QVERIFY(panel.a.isVisible());
}

// The flag that keeps a show by pop() off the stack waits for the next managed widget that is
// shown.
void tst_widgetstack::popOntoANullEntry()
{
    Panel panel;
    stack()->push(nullptr);
    panel.a.show();
    QCOMPARE(stack()->size(), 2);
    QCOMPARE(stack()->pop(), static_cast<QWidget*>(&panel.a));
    QCOMPARE(stack()->size(), 1);
    panel.b.show();
    QCOMPARE(stack()->size(), 1);
    panel.c.show();
    QCOMPARE(stack()->size(), 2);
}

void tst_widgetstack::popOntoAPlainWidget()
{
    Panel panel;
    QWidget* plain = new QWidget(&panel.window);
    stack()->push(plain);
    panel.a.show();
    QVERIFY(!plain->isVisible());
    stack()->pop();
    QVERIFY(plain->isVisible());
    QCOMPARE(stack()->size(), 1);
    panel.b.show();
    QCOMPARE(stack()->size(), 1);
}

void tst_widgetstack::switchingManagementOffAndOn()
{
    Panel panel;
    panel.a.setAutoManagment(false);
    panel.a.show();
    QCOMPARE(stack()->size(), 0);
    panel.a.setAutoManagment(true);
    QCOMPARE(stack()->size(), 0);
    panel.a.hide();
    panel.a.show();
    QCOMPARE(stack()->size(), 1);
}

QTEST_MAIN(tst_widgetstack)
#include "tst_widgetstack.moc"
