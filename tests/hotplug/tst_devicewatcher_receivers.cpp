#include "hotplug/devicewatcher_p.h"

#include "hotplug/hotplugtesting.h"

#include <QThread>

using testing::Deleter;
using testing::Receiver;
using testing::SignalLog;

namespace
{

/// Deletes itself when an event arrives.
class Mayfly : public QObject
{
public:
    bool event(QEvent* event) override
    {
        if (event->type() == QDeviceChangeEvent::registeredType())
            delete this;
        return true;
    }
};

/// Counts the events that arrive in the thread it lives in, and those that do not.
class ThreadReceiver : public QObject
{
public:
    ThreadReceiver() : here(0), elsewhere(0)
    {
    }

    bool event(QEvent* event) override
    {
        if (event->type() != QDeviceChangeEvent::registeredType())
            return QObject::event(event);
        (QThread::currentThread() == thread() ? here : elsewhere).ref();
        return true;
    }

    QAtomicInt here;
    QAtomicInt elsewhere;
};

/// Makes receivers, hands them over, and destroys them at a moment of its own.
class ReceiverMill : public QThread
{
public:
    ReceiverMill() : m_handedOver(nullptr)
    {
    }

    void run() override
    {
        for (int i = 0; i < 500; ++i) {
            QObject* receiver = new QObject;
            m_handedOver.fetchAndStoreOrdered(receiver);
            while (handedOver())
                yieldCurrentThread();
            for (volatile int spin = 0; spin < (i % 50) * 40; spin = spin + 1) {
            }
            delete receiver;
        }
    }

    QObject* handedOver()
    {
        return m_handedOver.fetchAndAddOrdered(0);
    }

    void taken()
    {
        m_handedOver.fetchAndStoreOrdered(nullptr);
    }

private:
    QAtomicPointer<QObject> m_handedOver;
};

} // namespace

class tst_devicewatcher_receivers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyReceiverGetsItsOwnEventInOrder();
    void eventsOvertakeOrdinaryOnes();
    void receiverAddedTwiceGetsTwoEvents();
    void nullReceiverIsHarmless();
    void withoutReceiversThereIsOnlyTheSignal();
    void destroyedReceiverIsDropped();
    void orderOutlivesTheDestroyed();
    void receiverDestroyedWithEventUnderWay();
    void receiverDestroyedByASlot();
    void receiverDestroysItself();
    void receiversInOtherThreads();
    void receiversDestroyedInOtherThreads();
};

void tst_devicewatcher_receivers::everyReceiverGetsItsOwnEventInOrder()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    QStringList log;
    Receiver a(QLatin1String("a"), &log);
    Receiver b(QLatin1String("b"), &log);
    Receiver c(QLatin1String("c"), &log);
    parser.appendEventReceiver(&b);
    parser.appendEventReceiver(&a);
    parser.appendEventReceiver(&c);
    parser.parseLine("change@/x");
    parser.parseLine("add@/y");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(log.join(QLatin1String(" ")),
             QString::fromLatin1("b:2:change@/x a:2:change@/x c:2:change@/x "
                                 "b:0:add@/y a:0:add@/y c:0:add@/y"));
}

void tst_devicewatcher_receivers::eventsOvertakeOrdinaryOnes()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    QStringList log;
    Receiver receiver(QLatin1String("r"), &log);
    parser.appendEventReceiver(&receiver);
    const QString ordinary = QString::fromLatin1("ordinary");
    QCoreApplication::postEvent(&receiver,
                                new QDeviceChangeEvent(QDeviceChangeEvent::Add, ordinary));
    parser.parseLine("add@/x");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(log.join(QLatin1String(" ")), QString::fromLatin1("r:0:add@/x r:0:ordinary"));
}

void tst_devicewatcher_receivers::receiverAddedTwiceGetsTwoEvents()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    QStringList log;
    Receiver receiver(QLatin1String("r"), &log);
    parser.appendEventReceiver(&receiver);
    parser.appendEventReceiver(&receiver);
    parser.parseLine("add@/x");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(log.join(QLatin1String(" ")), QString::fromLatin1("r:0:add@/x r:0:add@/x"));
}

void tst_devicewatcher_receivers::nullReceiverIsHarmless()
{
    QDeviceWatcher watcher;
    watcher.appendEventReceiver(nullptr);
    QDeviceWatcherPrivate parser(&watcher);
    QStringList log;
    Receiver receiver(QLatin1String("r"), &log);
    testing::Messages messages;
    parser.appendEventReceiver(nullptr);
    parser.appendEventReceiver(&receiver);
    parser.appendEventReceiver(nullptr);
    parser.parseLine("add@/x");
    parser.parseLine("add@/y");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(log.join(QLatin1String(" ")), QString::fromLatin1("r:0:add@/x r:0:add@/y"));
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_devicewatcher_receivers::withoutReceiversThereIsOnlyTheSignal()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    SignalLog log(&watcher);
    for (int i = 0; i < 100; ++i) // an event made for nobody would be a leak
        parser.parseLine("add@/devices/x");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(log.entries.size(), 100);
}

void tst_devicewatcher_receivers::destroyedReceiverIsDropped()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    QStringList log;
    Receiver* first = new Receiver(QLatin1String("first"), &log);
    QWidget* widget = new QWidget;
    Receiver last(QLatin1String("last"), &log);
    parser.appendEventReceiver(first);
    parser.appendEventReceiver(widget);
    parser.appendEventReceiver(&last);
    delete first;
    delete widget;
    parser.parseLine("add@/x");
    parser.parseLine("remove@/x");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(log.join(QLatin1String(" ")), QString::fromLatin1("last:0:add@/x last:1:remove@/x"));
}

void tst_devicewatcher_receivers::orderOutlivesTheDestroyed()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    QStringList log;
    QList<Receiver*> receivers;
    for (int i = 0; i < 9; ++i) {
        receivers.append(new Receiver(QString::number(i), &log));
        parser.appendEventReceiver(receivers.last());
    }
    const int destroyed[] = {0, 3, 4, 5, 8};
    for (size_t i = 0; i < sizeof destroyed / sizeof destroyed[0]; ++i)
        delete receivers.at(destroyed[i]);
    for (int round = 0; round < 2; ++round) {
        parser.parseLine("add@/x");
        QCoreApplication::sendPostedEvents();
        QCOMPARE(log.join(QLatin1String(" ")),
                 QString::fromLatin1("1:0:add@/x 2:0:add@/x 6:0:add@/x 7:0:add@/x"));
        log.clear();
    }
    const int living[] = {1, 2, 6, 7};
    for (size_t i = 0; i < sizeof living / sizeof living[0]; ++i)
        delete receivers.at(living[i]);
}

void tst_devicewatcher_receivers::receiverDestroyedWithEventUnderWay()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    QStringList log;
    Receiver* first = new Receiver(QLatin1String("first"), &log);
    Receiver last(QLatin1String("last"), &log);
    parser.appendEventReceiver(first);
    parser.appendEventReceiver(&last);
    parser.parseLine("add@/x");
    delete first;
    QCoreApplication::sendPostedEvents();
    QCOMPARE(log, QStringList(QLatin1String("last:0:add@/x")));
}

void tst_devicewatcher_receivers::receiverDestroyedByASlot()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    QStringList log;
    Receiver* first = new Receiver(QLatin1String("first"), &log);
    Receiver last(QLatin1String("last"), &log);
    Deleter deleter(first);
    connect(&watcher, SIGNAL(deviceRemoved(QString)), &deleter, SLOT(deleteIt()));
    parser.appendEventReceiver(first);
    parser.appendEventReceiver(&last);
    parser.parseLine("remove@/x");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(log, QStringList(QLatin1String("last:1:remove@/x")));
}

void tst_devicewatcher_receivers::receiverDestroysItself()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    QPointer<QObject> mayfly(new Mayfly);
    parser.appendEventReceiver(mayfly);
    parser.appendEventReceiver(mayfly);
    parser.parseLine("add@/x"); // the second event dies with it
    QCoreApplication::sendPostedEvents();
    QVERIFY(!mayfly);
    parser.parseLine("add@/y");
    QCoreApplication::sendPostedEvents();
}

void tst_devicewatcher_receivers::receiversInOtherThreads()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    QThread threads[3];
    ThreadReceiver receivers[4]; // the last one stays here
    for (int i = 0; i < 4; ++i)
        parser.appendEventReceiver(&receivers[i]);
    for (int i = 0; i < 3; ++i) {
        receivers[i].moveToThread(&threads[i]);
        threads[i].start();
    }
    for (int i = 0; i < 200; ++i)
        parser.parseLine(i % 2 ? "add@/x" : "change@/x");
    for (int r = 0; r < 4; ++r) {
        QVERIFY(testing::waitUntil([&] { return receivers[r].here.fetchAndAddOrdered(0) == 200; }));
        QCOMPARE(receivers[r].elsewhere.fetchAndAddOrdered(0), 0);
    }
    for (int i = 0; i < 3; ++i) {
        threads[i].quit();
        threads[i].wait();
    }
}

void tst_devicewatcher_receivers::receiversDestroyedInOtherThreads()
{
    QDeviceWatcher watcher;
    QDeviceWatcherPrivate parser(&watcher);
    ReceiverMill mill;
    mill.start();
    int taken = 0;
    while (!mill.isFinished()) {
        if (QObject* receiver = mill.handedOver()) {
            parser.appendEventReceiver(receiver);
            mill.taken(); // it may be destroyed from here on
            ++taken;
        }
        parser.parseLine("add@/devices/x");
    }
    mill.wait();
    QCOMPARE(taken, 500);
}

QTEST_MAIN(tst_devicewatcher_receivers)
#include "tst_devicewatcher_receivers.moc"
