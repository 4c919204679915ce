// A whole device: a dosing unit with its network settings, a measurement, a list of recipes, and a
// service page that a check box opens. What the user sets is kept; signs in the title say what is
// plugged in. docs/device.md tells how to put it on a device.
//
// usage: appliance [SETTINGS-FILE [STYLE-FILE]]

#include "common/netlinkaddress.h"
#include "stylefile.h"

#include <CHotplugWatcher>
#include <CLabel>
#include <CPageListWidget>
#include <CPageWidget>
#include <CParmCheckBox>
#include <CParmComboBox>
#include <CParmLabel>
#include <CParmLineEdit>
#include <CProgressBar>
#include <CPushButton>
#include <CTopTitleArea>
#include <CWidgetStyle>
#include <QApplication>
#include <QDeviceWatcher>
#include <QSettings>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdio>

namespace
{

const int margin = 20;
const int fieldWidth = 700;
const int tickInterval = 250; // ms
const int servicePage = 2;
const int recipeCount = 48;

// The kinds of device that the title has a sign for.
const struct {
    CWidgetStyle::DeviceType type;
    const char* name;
} devices[] = {
    {CWidgetStyle::DeviceKeyboard, "Keyboard"},
    {CWidgetStyle::DeviceMouse, "Mouse"},
    {CWidgetStyle::DeviceStorage, "Storage"},
};

// What can be set, in the order in which it stands on its page. A choice has its entries separated
// by '|', a value its keypad and, where the range is not empty, its bounds.
const struct Setting {
    int page;
    const char* key;
    const char* label;
    const char* preset;
    const char* entries;
    CKeyPadFactory::KeyPadType keypad;
    int minimum;
    int maximum;
} settings[] = {
    // clang-format off
    {0, "network/mode",        "Mode",             "DHCP",       "DHCP|Static", CKeyPadFactory::SKP_GENERAL, 0,     0},
    {0, "network/address",     "Address",          "192.0.2.17", nullptr,       CKeyPadFactory::SKP_FLOAT,   0,     0},
    {0, "network/name",        "Name",             "dosing-17",  nullptr,       CKeyPadFactory::SKP_GENERAL, 0,     0},
    {0, "network/port",        "Port",             "8080",       nullptr,       CKeyPadFactory::SKP_DECIMAL, 1024,  65535},
    {1, "measurement/unit",    "Unit",             "ml",         "ml|g|oz",     CKeyPadFactory::SKP_GENERAL, 0,     0},
    {1, "measurement/target",  "Amount per dose",  "250",        nullptr,       CKeyPadFactory::SKP_DECIMAL, 10,    500},
    {1, "measurement/rate",    "Rate, per second", "20",         nullptr,       CKeyPadFactory::SKP_DECIMAL, 1,     100},
    {2, "service/code",        "Service code",     "0",          nullptr,       CKeyPadFactory::SKP_HEX,     0,     0xFFFF},
    {2, "service/offset",      "Sensor offset",    "0",          nullptr,       CKeyPadFactory::SKP_DECIMAL, -50,   50},
    // clang-format on
};

const char* const pageTitles[] = {"Network", "Measurement", "Service", "Recipes"};
const int pageCount = sizeof pageTitles / sizeof pageTitles[0];

QString latin(const char* text)
{
    return QString::fromLatin1(text);
}

CLabel* addText(const QString& text, QWidget* parent)
{
    CLabel* const label = new CLabel(parent);
    label->setBackgroundColor(QColor());
    label->setText(text);
    return label;
}

} // namespace

/// The title: what this is, and a lamp for each kind of device, lit while one is plugged in.
class Title : public CTopTitleArea
{
    Q_OBJECT

public:
    explicit Title(QWidget* parent);

public Q_SLOTS:
    void refresh();

private:
    QList<CWidget*> m_lamps;
};

Title::Title(QWidget* parent) : CTopTitleArea(parent)
{
    const int pitch = 110;
    setSize(CWidgetStyle::getSize(CWidgetStyle::TopBarSize));
    setTitle(latin("Dosing unit"));
    const int count = sizeof devices / sizeof devices[0];
    for (int i = 0; i < count; ++i) {
        const int x = width() - (count - i) * pitch;
        CWidget* const lamp = new CWidget(this);
        lamp->setObjectName(latin("lamp-") + latin(devices[i].name));
        lamp->setSize(19, 19);
        lamp->move(x, 13);
        m_lamps.append(lamp);
        addText(latin(devices[i].name), this)->setGeometry(x + 24, 8, pitch - 24, 28);
    }
    refresh();
}

void Title::refresh()
{
    for (int i = 0; i < m_lamps.size(); ++i) {
        const bool lit = CWidgetStyle::isDeviceAvailable(devices[i].type);
        m_lamps.at(i)->setBackground(CWidgetStyle::getLEDStatus(
            lit ? CWidgetStyle::LedState1 : CWidgetStyle::LedState0, CWidgetStyle::LargeIcon));
    }
}

/// The whole panel.
class Appliance : public CWidget
{
    Q_OBJECT

public:
    explicit Appliance(const QString& settingsFile);

private Q_SLOTS:
    void keepText(const QString& text);
    void keepChoice(int index);
    void chooseRecipe(const QString& recipe);
    void startOrStop();
    void dose();
    void openService(int state);

private:
    QString value(const char* key) const;
    void keep(const QString& key, const QString& value);
    QVBoxLayout* addPage(const char* title);
    void addSetting(const Setting& setting, QVBoxLayout* page);
    void addField(CWidget* field, const char* key, QVBoxLayout* page);
    void addMeasurement(QVBoxLayout* page);
    void addRecipes(QVBoxLayout* page);
    void addService(QVBoxLayout* page);
    void updateAddress();

    QSettings m_settings;
    Title* m_title;
    CPageWidget* m_pages;
    CLabel* m_report;
    CProgressBar* m_level;
    CPushButton* m_run;
    QTimer* m_timer;
    CParmCheckBox* m_service;
    CParmLabel* m_count;
    CParmLineEdit* m_address;

    Q_DISABLE_COPY(Appliance)
};

Appliance::Appliance(const QString& settingsFile)
    : m_settings(settingsFile, QSettings::IniFormat),
      m_title(new Title(this)),
      m_pages(new CPageWidget(this)),
      m_report(addText(QString(), this)),
      m_level(nullptr),
      m_run(nullptr),
      m_timer(new QTimer(this)),
      m_service(nullptr),
      m_count(nullptr),
      m_address(nullptr)
{
    setSize(CWidgetStyle::getSize(CWidgetStyle::ScreenSize));
    setWindowTitle(latin("Dosing unit"));
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::Color26));
    m_pages->setSize(width() - 2 * margin, 460);
    m_pages->move(margin, m_title->height() + margin);
    m_report->setObjectName(latin("report"));
    m_report->setGeometry(margin, 550, width() - 2 * margin, 32);
    for (int i = 0; i < pageCount; ++i) {
        QVBoxLayout* const page = addPage(pageTitles[i]);
        for (size_t j = 0; j < sizeof settings / sizeof settings[0]; ++j) {
            if (settings[j].page == i)
                addSetting(settings[j], page);
        }
        if (i == 1)
            addMeasurement(page);
        else if (i == servicePage)
            addService(page);
        else if (i == 3)
            addRecipes(page);
        page->addStretch();
    }
    connect(m_timer, SIGNAL(timeout()), this, SLOT(dose()));
    m_pages->setCurrentPage(0);
    updateAddress();
    openService(m_service->checkState());
    m_report->setText(m_settings.isWritable() ? latin("Ready")
                                              : latin("Ready, but settings cannot be kept"));
}

QString Appliance::value(const char* key) const
{
    for (size_t i = 0; i < sizeof settings / sizeof settings[0]; ++i) {
        if (qstrcmp(settings[i].key, key) == 0)
            return m_settings.value(latin(key), latin(settings[i].preset)).toString();
    }
    return m_settings.value(latin(key)).toString();
}

/// Keeps it at once: a device has no moment for it later.
void Appliance::keep(const QString& key, const QString& value)
{
    m_settings.setValue(key, value);
    m_settings.sync();
    m_report->setText(m_settings.status() == QSettings::NoError
                          ? QString::fromLatin1("Kept: %1 is %2").arg(key, value)
                          : QString::fromLatin1("%1 cannot be kept").arg(key));
}

QVBoxLayout* Appliance::addPage(const char* title)
{
    CWidget* const page = new CWidget;
    page->setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::ContainerBackgroundColor));
    QVBoxLayout* const column = new QVBoxLayout(page);
    column->setContentsMargins(margin, 10, margin, 10);
    column->setSpacing(10);
    column->addWidget(addText(latin(title), page));
    m_pages->addPage(page);
    return column;
}

void Appliance::addField(CWidget* field, const char* key, QVBoxLayout* page)
{
    field->setObjectName(latin(key));
    field->setWidth(fieldWidth);
    page->addWidget(field);
}

void Appliance::addSetting(const Setting& setting, QVBoxLayout* page)
{
    if (setting.entries) {
        CParmComboBox* const choice =
            new CParmComboBox(latin(setting.label), latin(setting.entries).split(QLatin1Char('|')),
                              value(setting.key), nullptr);
        connect(choice, SIGNAL(activated(int)), this, SLOT(keepChoice(int)));
        addField(choice, setting.key, page);
        return;
    }
    CParmLineEdit* const edit =
        new CParmLineEdit(latin(setting.label), value(setting.key), nullptr);
    edit->setSKPType(setting.keypad);
    if (setting.minimum < setting.maximum)
        edit->setRange(setting.minimum, setting.maximum);
    connect(edit, SIGNAL(textEdited(QString)), this, SLOT(keepText(QString)));
    addField(edit, setting.key, page);
    if (qstrcmp(setting.key, "network/address") == 0)
        m_address = edit;
}

void Appliance::addMeasurement(QVBoxLayout* page)
{
    m_level = new CProgressBar;
    m_level->setObjectName(latin("level"));
    m_level->setRange(0, 1000);
    m_run = new CPushButton;
    m_run->setObjectName(latin("run"));
    m_run->setStyle(CPushButton::GreenStyle, true);
    m_run->setText(latin("Start"));
    m_run->setFixedSize(120, 40);
    connect(m_run, SIGNAL(clicked()), this, SLOT(startOrStop()));
    page->addWidget(m_level, 0, Qt::AlignHCenter);
    page->addWidget(m_run, 0, Qt::AlignHCenter);
}

void Appliance::addRecipes(QVBoxLayout* page)
{
    QStringList names;
    for (int i = 1; i <= recipeCount; ++i)
        names.append(QString::fromLatin1("Recipe %1").arg(i, 2, 10, QLatin1Char('0')));
    CPageListWidget* const list = new CPageListWidget;
    list->setObjectName(latin("recipes"));
    list->setTitle(latin("Recipe"));
    list->setText(value("recipe/name"));
    list->addItems(names);
    list->setSize(fieldWidth, 330);
    connect(list, SIGNAL(currentItemChanged(QString)), this, SLOT(chooseRecipe(QString)));
    page->addWidget(list);
}

void Appliance::addService(QVBoxLayout* page)
{
    m_count = new CParmLabel(latin("Doses so far"), value("service/doses"), nullptr);
    addField(m_count, "service/doses", page);
    // The switch is on a page that everybody sees.
    QVBoxLayout* const first = qobject_cast<QVBoxLayout*>(m_pages->widget(0)->layout());
    m_service =
        new CParmCheckBox(latin("Service page"), latin("shown before the recipes"), nullptr);
    addField(m_service, "service/shown", first);
    m_service->setChecked(value("service/shown") == latin("1"));
    connect(m_service, SIGNAL(stateChanged(int)), this, SLOT(openService(int)));
}

void Appliance::keepText(const QString& text)
{
    keep(sender()->objectName(), text);
}

void Appliance::keepChoice(int)
{
    CParmComboBox* const choice = qobject_cast<CParmComboBox*>(sender());
    keep(choice->objectName(), choice->currentText());
    updateAddress();
}

/// An address of one's own is for the static mode only.
void Appliance::updateAddress()
{
    m_address->setEnable(value("network/mode") == latin("Static"));
}

void Appliance::chooseRecipe(const QString& recipe)
{
    keep(latin("recipe/name"), recipe);
}

void Appliance::openService(int state)
{
    const bool shown = state == Qt::Checked;
    if (shown)
        m_pages->showPage(servicePage);
    else
        m_pages->hidePage(servicePage);
    if (sender())
        keep(latin("service/shown"), latin(shown ? "1" : "0"));
}

void Appliance::startOrStop()
{
    const bool runs = m_timer->isActive();
    if (runs)
        m_timer->stop();
    else
        m_timer->start(tickInterval);
    m_level->setValue(0);
    m_run->setStyle(runs ? CPushButton::GreenStyle : CPushButton::RedStyle, true);
    m_run->setText(latin(runs ? "Start" : "Stop"));
}

/// One tick of a dose, in thousandths of it; the last one stops it.
void Appliance::dose()
{
    const int target = qMax(1, value("measurement/target").toInt());
    const int dosed = m_level->value() + value("measurement/rate").toInt() * tickInterval / target;
    m_level->setValue(dosed);
    if (dosed < 1000)
        return;
    startOrStop();
    const QString doses = QString::number(value("service/doses").toInt() + 1);
    m_count->setText(doses);
    keep(latin("service/doses"), doses);
}

int main(int argc, char** argv)
{
    NetlinkAddress address; // before Qt listens for input devices
    QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0); // the panel sleeps while nobody touches it
    const QStringList arguments = QApplication::arguments();
    const QString style = arguments.value(2, shippedStyleFile());
    if (!CWidgetStyle::initialize(style)) // before any widget is made
        fprintf(stderr, "The style file %s cannot be read.\n", qPrintable(style));
    address.release();
    CHotplugWatcher hotplug;
    Appliance appliance(arguments.value(1, latin("appliance.ini")));
    // The registry is up to date when its source tells others.
    QDeviceWatcher* const source = hotplug.findChild<QDeviceWatcher*>();
    Title* const title = appliance.findChild<Title*>();
    QObject::connect(source, SIGNAL(deviceAdded(QString)), title, SLOT(refresh()));
    QObject::connect(source, SIGNAL(deviceRemoved(QString)), title, SLOT(refresh()));
    appliance.show();
    return QApplication::exec();
}

#include "main.moc"
