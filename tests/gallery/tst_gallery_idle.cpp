#include "devicesign.h"
#include "gallerywidgets.h"
#include "pages/pagewidget.h"
#include "panel.h"
#include "support/testing.h"
#include "titlestrip.h"
#include "widgets/clockprogress.h"
#include "widgets/lineedit.h"
#include "widgets/widgetstack.h"

namespace
{

const int rest = 650; // ms: a cursor at Qt's own pace would blink in that time
const int minute = 60 * 1000;

/// Names what a timer fires for while it lives. The time of the title strip may change.
class Woken : public QObject
{
public:
    Woken()
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    QStringList names() const
    {
        return m_names;
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Timer && !qobject_cast<TitleStrip*>(watched->parent()))
            m_names.append(nameOf(watched));
        return false;
    }

private:
    static QString nameOf(const QObject* object)
    {
        QStringList names;
        for (; object; object = object->parent())
            names.prepend(QLatin1String(object->metaObject()->className()));
        return names.join(QLatin1String("/"));
    }

    QStringList m_names;
};

/// What is woken by time alone.
QStringList wokenAtRest()
{
    QTest::qWait(50); // what was still to do
    const Woken woken;
    QTest::qWait(rest);
    return woken.names();
}

QList<QImage> pictures(const QList<DeviceSign*>& signs)
{
    QList<QImage> pictures;
    for (int i = 0; i < signs.size(); ++i)
        pictures.append(testing::render(signs.at(i)));
    return pictures;
}

} // namespace

class tst_gallery_idle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void screenSleeps_data();
    void screenSleeps();
    void onlyClocksWakeTheProgressScreen();
    void clocksRestWithTheirScreen();
    void everyPageSleeps();
    void fieldWithTheCursorSleeps();
    void timeOfTheTitleSleepsUntilTheNextMinute();
    void signFollowsANotification();

private:
    Panel* m_panel;
};

void tst_gallery_idle::init()
{
    const QString style = QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml");
    QVERIFY(CWidgetStyle::initialize(style));
    m_panel = new Panel(style);
    m_panel->showScreen(QLatin1String("controls"));
    m_panel->show();
    QVERIFY(testcompat::waitForWindow(m_panel));
}

void tst_gallery_idle::cleanup()
{
    KQWidgetStack::instance()->popAll(); // which does not watch its screens
    delete m_panel;
}

void tst_gallery_idle::screenSleeps_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = Panel::screenNames();
    for (int i = 0; i < names.size(); ++i) {
        if (names.at(i) != QLatin1String("progress"))
            QTest::newRow(qPrintable(names.at(i))) << names.at(i);
    }
}

void tst_gallery_idle::screenSleeps()
{
    QFETCH(QString, name);
    m_panel->showScreen(name);
    QCOMPARE(wokenAtRest(), QStringList());
}

void tst_gallery_idle::onlyClocksWakeTheProgressScreen()
{
    m_panel->showScreen(QLatin1String("progress"));
    const QStringList woken = wokenAtRest();
    QCOMPARE(m_panel->findChildren<CClockProgress*>().size(), 3);
    QVERIFY(woken.size() >= 3);
    QCOMPARE(woken.filter(QLatin1String("/CClockProgress/QTimer")), woken);
}

void tst_gallery_idle::clocksRestWithTheirScreen()
{
    m_panel->showScreen(QLatin1String("progress"));
    m_panel->showScreen(QLatin1String("controls"));
    QCOMPARE(wokenAtRest(), QStringList());
    m_panel->showScreen(QLatin1String("progress"));
    const QList<CClockProgress*> clocks = m_panel->findChildren<CClockProgress*>();
    for (int i = 0; i < clocks.size(); ++i)
        QVERIFY(clocks.at(i)->isRunning() && clocks.at(i)->isVisible());
}

void tst_gallery_idle::everyPageSleeps()
{
    m_panel->showScreen(QLatin1String("parameters"));
    CPageWidget* const pages = m_panel->findChild<CPageWidget*>();
    QVERIFY(pages->count() > 1);
    for (int page = 1; page < pages->count(); ++page) {
        pages->setCurrentPage(page);
        QCOMPARE(wokenAtRest(), QStringList());
    }
}

void tst_gallery_idle::fieldWithTheCursorSleeps()
{
    m_panel->showScreen(QLatin1String("entry"));
    m_panel->activateWindow();
    CLineEdit* const field = m_panel->findChild<CLineEdit*>(QLatin1String("entry-General"));
    field->setSKPActive(false);
    QTest::mouseClick(field, Qt::LeftButton);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(field));
    QCOMPARE(wokenAtRest(), QStringList());
}

void tst_gallery_idle::timeOfTheTitleSleepsUntilTheNextMinute()
{
    const QTime midnight(0, 0);
    const int before = midnight.msecsTo(QTime::currentTime());
    const TitleStrip strip(nullptr);
    const int after = midnight.msecsTo(QTime::currentTime());
    const QTimer* const timer = strip.findChild<QTimer*>();
    QVERIFY(timer->isActive() && timer->isSingleShot());
    const int end = (after + timer->interval()) / minute * minute;
    QVERIFY(before + timer->interval() <= end);
}

/// The registry is not polled: a notification changes the sign.
void tst_gallery_idle::signFollowsANotification()
{
    const QList<DeviceSign*> signs = m_panel->findChildren<DeviceSign*>();
    QCOMPARE(signs.size(), 3);
    const QList<QImage> dark = pictures(signs);
    CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceKeyboard, true);
    QVERIFY(QMetaObject::invokeMethod(m_panel->screen(QLatin1String("devices")), "noteAdded",
                                      Q_ARG(QString, QLatin1String("add@/devices/x"))));
    const QList<QImage> lit = pictures(signs);
    CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceKeyboard, false);
    QCOMPARE(lit.at(0), dark.at(0));
    QCOMPARE(lit.at(1), dark.at(1));
    QVERIFY(lit.at(2) != dark.at(2));
}

QTEST_MAIN(tst_gallery_idle)
#include "tst_gallery_idle.moc"
