#include "gallerywindow.h"

#include "keymap.h"
#include "pages/pagebar.h"
#include "support/desktopmain.h"
#include "widgets/checkbox.h"
#include "widgets/lineedit.h"

#define main applianceMain
#include "appliance/main.cpp"
#undef main

namespace
{

const QRect belowTitle(0, 44, 800, 556);       // the title's lamps show this machine's devices
const QRect belowFirstField(0, 150, 800, 450); // in which the cursor may stand
const QRect report(20, 550, 760, 32);

/// The same panel in this process, with settings of its own: it says where things are, and how they
/// look.
class Twin
{
public:
    explicit Twin(const QString& settingsFile) : m_panel(settingsFile)
    {
        m_panel.setAttribute(Qt::WA_DontShowOnScreen);
        m_panel.show();
        QCoreApplication::processEvents();
    }

    /// The bar below the pages; the list of recipes has another one.
    CPageBar* bar() const
    {
        const QList<CPageBar*> bars = m_panel.findChildren<CPageBar*>();
        for (int i = 0; i < bars.size(); ++i) {
            if (qobject_cast<CPageWidget*>(bars.at(i)->parent()))
                return bars.at(i);
        }
        return nullptr;
    }

    QPoint nextPage() const
    {
        return centerOf(bar()->findChildren<CPushButton*>().last());
    }

    template <typename Part>
    Part* part(const char* setting) const
    {
        return m_panel.findChild<QWidget*>(latin(setting))->findChild<Part*>();
    }

    QPoint centerOf(const QWidget* widget) const
    {
        return widget->mapTo(const_cast<Appliance*>(&m_panel), widget->rect().center());
    }

    QImage picture()
    {
        return testing::render(&m_panel);
    }

    /// What the report line shows with \a text.
    QImage reporting(const QString& text)
    {
        m_panel.findChild<CLabel*>(latin("report"))->setText(text);
        return picture();
    }

private:
    Appliance m_panel;
};

} // namespace

class tst_appliance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void everyPageOpens();
    void typedValueOutlivesThePanel();
    void checkBoxOpensThePageForTheService();
    void saysWhereSettingsCannotBeKept();

private:
    QString ownSettings() const;
    bool start(const QString& settingsFile);
    QString shown(Twin* twin) const;

    testing::TemporaryFolder* m_folder;
    GalleryWindow* m_window;
};

void tst_appliance::initTestCase()
{
    QVERIFY(CWidgetStyle::initialize(latin(CWIDGET_SOURCE_DIR "/style/widget-style.xml")));
}

void tst_appliance::init()
{
    m_folder = new testing::TemporaryFolder;
    m_window = nullptr;
}

void tst_appliance::cleanup()
{
    delete m_window;
    delete m_folder;
}

/// Those of the panel as they are now, for a twin that keeps nothing in them.
QString tst_appliance::ownSettings() const
{
    static int number = 0;
    const QByteArray kept = testing::contentOf(m_folder->path() + latin("/settings.ini"));
    return m_folder->write(QString::fromLatin1("twin%1.ini").arg(++number), kept);
}

bool tst_appliance::start(const QString& settingsFile)
{
    delete m_window;
    m_window = new GalleryWindow(latin("Dosing unit"), latin(APPLIANCE), QStringList(settingsFile));
    return m_window->waitUntilShown();
}

/// Where the window differs from the twin; empty when they look alike.
QString tst_appliance::shown(Twin* twin) const
{
    return m_window->waitFor(twin->picture(), belowTitle);
}

void tst_appliance::everyPageOpens()
{
    Twin twin(ownSettings());
    QVERIFY(start(m_folder->path() + latin("/settings.ini")));
    QCOMPARE(twin.bar()->count(), 3); // that for the service is hidden
    QList<QImage> pictures;
    for (int page = 0; page < 3; ++page) {
        QCOMPARE(shown(&twin), QString());
        QVERIFY(!pictures.contains(twin.picture()));
        pictures.append(twin.picture());
        m_window->separateClicks();
        m_window->click(twin.nextPage());
        twin.bar()->rightClicked();
    }
    QCOMPARE(shown(&twin), QString());
    QCOMPARE(twin.picture(), pictures.first()); // the first one comes after the last one
}

void tst_appliance::typedValueOutlivesThePanel()
{
    const QString settings = m_folder->path() + latin("/settings.ini");
    Twin twin(ownSettings());
    QVERIFY(start(settings));
    QCOMPARE(shown(&twin), QString());
    m_window->click(twin.centerOf(twin.part<CLineEdit>("network/port")));
    const KeyMap map(CKeyPadFactory::SKP_DECIMAL);
    QVERIFY(map.waitUntilShown(*m_window));
    m_window->click(map.key(Key_DelAll));
    const QString digits = latin("9090");
    for (int i = 0; i < digits.size(); ++i) {
        m_window->separateClicks();
        m_window->click(map.key(digits.mid(i, 1)));
    }
    m_window->click(map.key(Key_Apply));
    const QImage kept = twin.reporting(latin("Kept: network/port is 9090"));
    QCOMPARE(m_window->waitFor(kept, report), QString());
    m_window->kill();

    QVERIFY(testing::contentOf(settings).contains("port=9090\n"));
    Twin later(ownSettings());
    QCOMPARE(later.part<CLineEdit>("network/port")->text(), digits);
    QVERIFY(start(settings));
    QCOMPARE(shown(&later), QString());
}

void tst_appliance::checkBoxOpensThePageForTheService()
{
    const QString settings = m_folder->path() + latin("/settings.ini");
    Twin twin(ownSettings());
    QVERIFY(start(settings));
    QCOMPARE(shown(&twin), QString());
    m_window->click(twin.centerOf(twin.part<CCheckBox>("service/shown")));
    const QImage kept = twin.reporting(latin("Kept: service/shown is 1"));
    QCOMPARE(m_window->waitFor(kept, report), QString());
    m_window->kill();

    Twin later(ownSettings());
    QCOMPARE(later.bar()->count(), 4);
    later.bar()->rightClicked();
    later.bar()->rightClicked();
    QVERIFY(start(settings));
    m_window->click(later.nextPage());
    m_window->separateClicks();
    m_window->click(later.nextPage());
    QCOMPARE(m_window->waitFor(later.picture(), belowFirstField), QString());
    QVERIFY(later.part<CLineEdit>("service/offset")->isVisible());
}

void tst_appliance::saysWhereSettingsCannotBeKept()
{
    Twin twin(latin("/proc/settings.ini"));
    QVERIFY(start(latin("/proc/settings.ini")));
    QCOMPARE(shown(&twin), QString());
    const QImage refused = twin.reporting(latin("Ready, but settings cannot be kept"));
    QCOMPARE(m_window->waitFor(refused, report), QString());
}

CWIDGET_DESKTOP_TEST_MAIN(tst_appliance)

#include "tst_appliance.moc"
