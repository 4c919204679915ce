#include "pages/pagewidget.h"
#include "support/signaltools.h"
#include "support/testing.h"
#include "widgets/graphicsview.h"

namespace
{

QStringList deliveries; // of all pages, in their order
void* lastData = nullptr;
unsigned int lastSize = 0;

void deliver(const QString& name, void* data, unsigned int size)
{
    deliveries.append(name);
    lastData = data;
    lastSize = size;
}

class Page : public CWidget
{
public:
    explicit Page(const char* name) : m_name(QString::fromLatin1(name))
    {
    }

    void updateParm(void* data, unsigned int size) override
    {
        deliver(m_name, data, size);
    }

private:
    QString m_name;
};

class ViewPage : public CGraphicsView
{
public:
    void updateParm(void* data, unsigned int size) override
    {
        deliver(QString::fromLatin1("view"), data, size);
    }
};

/// Deletes something when it is updated.
class DeletingPage : public CWidget
{
public:
    explicit DeletingPage(QObject* target) : m_target(target)
    {
    }

    void updateParm(void*, unsigned int) override
    {
        deliveries.append(QString::fromLatin1("deleting"));
        delete m_target;
    }

private:
    QPointer<QObject> m_target;
};

/// The deliveries since the last call, for example "a b".
QString taken()
{
    const QString result = deliveries.join(QString::fromLatin1(" "));
    deliveries.clear();
    return result;
}

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

void addPages(CPageWidget* pages)
{
    pages->addPage(new Page("a"));
    pages->addPage(new Page("b"));
    pages->addPage(new Page("c"));
}

} // namespace

class tst_pagewidget_update : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pageOnScreenIsUpdated();
    void argumentsPassUnchanged();
    void everyPageChangeUpdatesWithNothingOf1024();
    void registeredPagesAreUpdatedInOrderOfRegistration();
    void registeringAllKeepsTheOrderOfEarlierOnes();
    void registrationIsBounded();
    void unregistering();
    void unregisteringIsBounded();
    void pageIsUpdatedTwiceWherePositionAndNumberDiffer();
    void pageOnScreenIsLeftOutWhereItsPositionIsRegistered();
    void repeatedNumbersAreAllUpdated();
    void hiddenPagesAreUpdatedOnlyWithoutAStackedOne();
    void emptyStackUpdatesRegisteredHiddenPages();
    void graphicsViewsAreUpdatedAndOthersLeftOut();
    void pagesMayDieWhileTheyAreUpdated();
    void pageWidgetMayDieWhileItUpdates();
    void dumpWritesPositionsAndNumbers();
    void dumpWithoutPages();
};

void tst_pagewidget_update::init()
{
    deliveries.clear();
    lastData = nullptr;
    lastSize = 0;
}

void tst_pagewidget_update::pageOnScreenIsUpdated()
{
    CPageWidget pages;
    addPages(&pages);
    pages.updateParm(nullptr, 1);
    QCOMPARE(taken(), text("a"));
    pages.setCurrentPage(1);
    QCOMPARE(taken(), text("b"));
}

void tst_pagewidget_update::argumentsPassUnchanged()
{
    CPageWidget pages;
    addPages(&pages);
    int data = 0;
    pages.updateParm(&data, 4000000000u);
    QCOMPARE(lastData, static_cast<void*>(&data));
    QCOMPARE(lastSize, 4000000000u);
}

void tst_pagewidget_update::everyPageChangeUpdatesWithNothingOf1024()
{
    CPageWidget pages;
    addPages(&pages);
    int data = 0;
    lastData = &data;
    pages.setCurrentPage(2);
    QCOMPARE(taken(), text("c"));
    QCOMPARE(lastData, static_cast<void*>(nullptr));
    QCOMPARE(lastSize, 1024u);
    pages.setCurrentPage(2); // the same page again
    QCOMPARE(taken(), text("c"));
    pages.setCurrentPage(7); // no such page: the one on screen
    QCOMPARE(taken(), text("c"));
}

void tst_pagewidget_update::registeredPagesAreUpdatedInOrderOfRegistration()
{
    CPageWidget pages;
    addPages(&pages);
    pages.openPageAutoUpdate(2);
    pages.openPageAutoUpdate(1);
    pages.openPageAutoUpdate(2); // listed already
    pages.updateParm(nullptr, 1);
    QCOMPARE(taken(), text("c b a"));
}

void tst_pagewidget_update::registeringAllKeepsTheOrderOfEarlierOnes()
{
    CPageWidget pages;
    addPages(&pages);
    pages.openPageAutoUpdate(1);
    pages.openPageAutoUpdate(-1);
    pages.updateParm(nullptr, 1);
    QCOMPARE(taken(), text("b a c"));
}

void tst_pagewidget_update::registrationIsBounded()
{
    CPageWidget pages;
    addPages(&pages);
    pages.openPageAutoUpdate(3); // not below the count
    pages.openPageAutoUpdate(2147483647);
    pages.addPage(new Page("d"));
    pages.updateParm(nullptr, 1);
    QCOMPARE(taken(), text("a"));
    pages.openPageAutoUpdate(3);
    pages.updateParm(nullptr, 1);
    QCOMPARE(taken(), text("d a"));
}

void tst_pagewidget_update::unregistering()
{
    CPageWidget pages;
    addPages(&pages);
    pages.openPageAutoUpdate(-1);
    pages.closePageAutoUpdate(1);
    pages.updateParm(nullptr, 1);
    QCOMPARE(taken(), text("a c"));
    pages.closePageAutoUpdate(3); // not below the count
    pages.updateParm(nullptr, 1);
    QCOMPARE(taken(), text("a c"));
    pages.closePageAutoUpdate(-1);
    pages.setCurrentPage(1);
    QCOMPARE(taken(), text("b"));
}

void tst_pagewidget_update::unregisteringIsBounded()
{
    CPageWidget pages;
    addPages(&pages);
    pages.openPageAutoUpdate(2);
    pages.hidePage(0); // the bar counts 2, and c is still numbered 2
    pages.closePageAutoUpdate(2);
    pages.updateParm(nullptr, 1);
    QCOMPARE(taken(), text("c b"));
    pages.showPage(0);
    pages.closePageAutoUpdate(2);
    pages.updateParm(nullptr, 1);
    QCOMPARE(taken(), text("b"));
}

void tst_pagewidget_update::pageIsUpdatedTwiceWherePositionAndNumberDiffer()
{
    CPageWidget pages;
    addPages(&pages);
    pages.hidePage(0); // b and c, numbered 1 and 2, are at 0 and 1
    pages.openPageAutoUpdate(1);
    pages.setCurrentPage(0);
    QCOMPARE(taken(), text("b b"));
}

void tst_pagewidget_update::pageOnScreenIsLeftOutWhereItsPositionIsRegistered()
{
    CPageWidget pages;
    addPages(&pages);
    pages.hidePage(0);
    pages.openPageAutoUpdate(1);
    pages.setCurrentPage(1); // c, whose position is b's number
    QCOMPARE(taken(), text("b"));
}

void tst_pagewidget_update::repeatedNumbersAreAllUpdated()
{
    CPageWidget pages;
    addPages(&pages);
    pages.insertPage(1, new Page("x"));
    pages.openPageAutoUpdate(1);
    pages.updateParm(nullptr, 1);
    QCOMPARE(taken(), text("x b a"));
}

void tst_pagewidget_update::hiddenPagesAreUpdatedOnlyWithoutAStackedOne()
{
    CPageWidget pages;
    addPages(&pages);
    pages.insertPage(1, new Page("x")); // a x b c, numbered 0 1 1 2
    pages.openPageAutoUpdate(1);
    pages.hidePage(1); // x; b stays
    pages.updateParm(nullptr, 1);
    QCOMPARE(taken(), text("b a"));
    pages.hidePage(1);
    pages.updateParm(nullptr, 1);
    QCOMPARE(taken(), text("x b a"));
}

void tst_pagewidget_update::emptyStackUpdatesRegisteredHiddenPages()
{
    CPageWidget pages;
    pages.updateParm(nullptr, 1); // nothing but a null entry
    QCOMPARE(taken(), text(""));
    pages.addPage(new Page("a"));
    pages.openPageAutoUpdate(0);
    pages.hidePage(0);
    pages.updateParm(nullptr, 1); // the null entry comes behind it
    QCOMPARE(taken(), text("a"));
}

void tst_pagewidget_update::graphicsViewsAreUpdatedAndOthersLeftOut()
{
    CPageWidget pages;
    pages.addPage(new QWidget);
    pages.addPage(new ViewPage);
    pages.addPage(new QGraphicsView);
    pages.addPage(new Page("last"));
    pages.openPageAutoUpdate(-1);
    int data = 0;
    pages.updateParm(&data, 7);
    QCOMPARE(taken(), text("view last"));
    QCOMPARE(lastData, static_cast<void*>(&data));
    QCOMPARE(lastSize, 7u);
    pages.closePageAutoUpdate(-1);
    pages.setCurrentPage(1);
    QCOMPARE(taken(), text("view"));
    QCOMPARE(lastSize, 1024u);
}

void tst_pagewidget_update::pagesMayDieWhileTheyAreUpdated()
{
    CPageWidget pages;
    Page* doomed = new Page("doomed");
    pages.addPage(new DeletingPage(doomed));
    pages.addPage(doomed);
    pages.addPage(new Page("last"));
    pages.openPageAutoUpdate(-1);
    pages.updateParm(nullptr, 1);
    QCOMPARE(taken(), text("deleting last"));
}

void tst_pagewidget_update::pageWidgetMayDieWhileItUpdates()
{
    CPageWidget* whole = new CPageWidget;
    QPointer<CPageWidget> guard(whole);
    DeletingPage* killer = new DeletingPage(whole);
    whole->addPage(killer);
    whole->addPage(new Page("never"));
    whole->openPageAutoUpdate(-1);
    whole->hidePage(0);
    killer->setParent(nullptr); // it survives the page widget, which still updates it
    whole->updateParm(nullptr, 1);
    QVERIFY(!guard);
    QCOMPARE(taken(), text("deleting"));
    delete killer;
}

void tst_pagewidget_update::dumpWritesPositionsAndNumbers()
{
    CPageWidget pages;
    addPages(&pages);
    pages.insertPage(0, new Page("x"));
    pages.hidePage(1);
    testing::Messages messages;
    pages.dump(-7);
    QStringList expected;
    expected << text("\"+++++++++++++++Start Dump@-7++++++++++++++\"") << text("\"(0, 0)\"")
             << text("\"(1, 0)\"") << text("\"(2, 2)\"")
             << text("\"+++++++++++++++End Dump@-7++++++++++++++\"");
    QCOMPARE(messages.debugs(), expected);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_pagewidget_update::dumpWithoutPages()
{
    CPageWidget pages;
    testing::Messages messages;
    pages.dump(12);
    QCOMPARE(messages.debugs().size(), 2);
    QCOMPARE(messages.debugs().at(0), text("\"+++++++++++++++Start Dump@12++++++++++++++\""));
    QCOMPARE(messages.debugs().at(1), text("\"+++++++++++++++End Dump@12++++++++++++++\""));
}

QTEST_MAIN(tst_pagewidget_update)
#include "tst_pagewidget_update.moc"
