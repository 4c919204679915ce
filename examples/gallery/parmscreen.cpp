#include "parmscreen.h"

#include "panel.h"

#include <CCheckBox>
#include <QVBoxLayout>

namespace
{

const int pagesHeight = 432; // with the page bar; the main button stands below
const int firstRow = 52;
const int rowGap = 26; // between rows of 30 pixels, so that no finger takes two
const int servicePage = 4;

const char* const modes[] = {"DHCP", "Static address", "Off"};
const char* const zones[] = {"UTC", "Berlin", "London", "New York", "Tokyo"};
const char* const formats[] = {"24 hours", "12 hours"};
const char* const ranges[] = {"Automatic", "10 mV", "100 mV", "1 V", "10 V"};
const char* const pressures[] = {"bar", "psi", "kPa"};
const char* const temperatures[] = {"Celsius", "Fahrenheit", "Kelvin"};

template <size_t count>
int sizeOf(const char* const (&)[count])
{
    return static_cast<int>(count);
}

} // namespace

ParmScreen::ParmScreen(Panel* panel) : Screen(QLatin1String("Parameters"), panel)
{
    connect(this, SIGNAL(hint(QString)), panel, SLOT(setHint(QString)));
    m_pages = new CPageWidget(this);
    m_pages->setObjectName(QLatin1String("pages"));
    m_pages->setSize(contentWidth(), pagesHeight);
    m_pages->move(layout::margin, layout::firstHeading);
    m_pages->setBackgroundColor(screenColor());
    addNetworkPage();
    addTimePage();
    addMeasurementPage();
    addUnitsPage();
    addServicePage();
    m_pages->hidePage(servicePage);
    m_pages->setCurrentPage(0);
    connect(addMainButton(QLatin1String("Save")), SIGNAL(clicked()), this, SLOT(saved()));
}

QVBoxLayout* ParmScreen::addPage(const QString& title)
{
    CWidget* page = new CWidget;
    page->setBackgroundColor(screenColor());
    QVBoxLayout* column = new QVBoxLayout(page);
    column->setContentsMargins(0, firstRow, 0, 0);
    column->setSpacing(rowGap);
    (new Heading(title, page))->setGeometry(-2, 0, contentWidth(), layout::headingHeight);
    column->addStretch();
    m_pages->addPage(page);
    return column;
}

void ParmScreen::addLabel(QVBoxLayout* page, const char* name, const char* value)
{
    CParmLabel* field = new CParmLabel(QLatin1String(name), QLatin1String(value), nullptr);
    field->setTextColor(Qt::black, FieldValue);
    field->setWidth(contentWidth(), Proportion1To1);
    page->insertWidget(page->count() - 1, field);
}

CParmLineEdit* ParmScreen::addEdit(QVBoxLayout* page, const char* name, const char* value,
                                   CKeyPadFactory::KeyPadType type)
{
    CParmLineEdit* field = new CParmLineEdit(QLatin1String(name), QLatin1String(value), nullptr);
    field->setObjectName(QLatin1String(name));
    field->setSKPType(type);
    field->setWidth(contentWidth(), Proportion1To1);
    connect(field, SIGNAL(textEdited(QString)), this, SLOT(textEntered(QString)));
    page->insertWidget(page->count() - 1, field);
    return field;
}

CParmComboBox* ParmScreen::addChoice(QVBoxLayout* page, const char* name, const char* const* items,
                                     int count, const char* current)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(QLatin1String(items[i]));
    CParmComboBox* field =
        new CParmComboBox(QLatin1String(name), list, QLatin1String(current), nullptr);
    field->setObjectName(QLatin1String(name));
    field->setWidth(contentWidth());
    connect(field, SIGNAL(activated(int)), this, SLOT(choiceMade(int)));
    page->insertWidget(page->count() - 1, field);
    return field;
}

CParmCheckBox* ParmScreen::addSwitch(QVBoxLayout* page, const char* name, const char* text)
{
    CParmCheckBox* field = new CParmCheckBox(QLatin1String(name), QLatin1String(text), nullptr);
    field->setObjectName(QLatin1String(name));
    field->setWidth(contentWidth());
    field->findChild<CLabel*>()->setFixedWidth(contentWidth() / 2); // as in the other rows
    field->setBorderVisible(false);
    // Like all check boxes it is white at first, which is for dark backgrounds.
    field->findChild<CCheckBox*>()->setForegroundColor(Qt::black);
    page->insertWidget(page->count() - 1, field);
    return field;
}

void ParmScreen::addNetworkPage()
{
    QVBoxLayout* page = addPage(QLatin1String("Network"));
    addLabel(page, "Hardware address", "02:00:5E:10:00:FF");
    addChoice(page, "Mode", modes, sizeOf(modes), "static address");
    addEdit(page, "Address", "192.0.2.17", CKeyPadFactory::SKP_FLOAT);
    addEdit(page, "Name", "panel-17", CKeyPadFactory::SKP_GENERAL);
    addEdit(page, "Port", "8080", CKeyPadFactory::SKP_DECIMAL)->setRange(1024, 65535);
}

void ParmScreen::addTimePage()
{
    QVBoxLayout* page = addPage(QLatin1String("Date and time"));
    addChoice(page, "Time zone", zones, sizeOf(zones), "Berlin");
    addChoice(page, "Format", formats, sizeOf(formats), "24 hours");
    addEdit(page, "Year", "2026", CKeyPadFactory::SKP_DECIMAL)->setRange(2020, 2099);
    addEdit(page, "Month", "11", CKeyPadFactory::SKP_DECIMAL)->setRange(1, 12);
    addEdit(page, "Day", "21", CKeyPadFactory::SKP_DECIMAL)->setRange(1, 31);
}

void ParmScreen::addMeasurementPage()
{
    QVBoxLayout* page = addPage(QLatin1String("Measurement"));
    addChoice(page, "Input range", ranges, sizeOf(ranges), "1 V");
    addEdit(page, "Samples", "64", CKeyPadFactory::SKP_DECIMAL)->setRange(1, 4096);
    addEdit(page, "Channel mask", "1F", CKeyPadFactory::SKP_HEX)->setRange(0, 255);
    addEdit(page, "Gain", "1.25", CKeyPadFactory::SKP_FLOAT);
    addLabel(page, "Last result", "0.7312 V");
}

void ParmScreen::addUnitsPage()
{
    QVBoxLayout* page = addPage(QLatin1String("Units"));
    addChoice(page, "Pressure", pressures, sizeOf(pressures), "bar");
    addChoice(page, "Temperature", temperatures, sizeOf(temperatures), "Celsius");
    CParmCheckBox* service = addSwitch(page, "Service page", "Shown as the last page");
    connect(service, SIGNAL(stateChanged(int)), this, SLOT(serviceChanged(int)));
}

void ParmScreen::addServicePage()
{
    QVBoxLayout* page = addPage(QLatin1String("Service"));
    addLabel(page, "Serial number", "SN 10447-3");
    addLabel(page, "Hours of operation", "11 208");
    addEdit(page, "Service code", "", CKeyPadFactory::SKP_HEX);
}

void ParmScreen::textEntered(const QString& text)
{
    Q_EMIT hint(QString::fromLatin1("%1: %2").arg(sender()->objectName(), text));
}

void ParmScreen::choiceMade(int index)
{
    Q_EMIT hint(QString::fromLatin1("%1: entry %2").arg(sender()->objectName()).arg(index));
}

void ParmScreen::saved()
{
    Q_EMIT hint(QLatin1String("Saved"));
}

void ParmScreen::serviceChanged(int state)
{
    const bool on = state == Qt::Checked;
    if (on)
        m_pages->showPage(servicePage);
    else
        m_pages->hidePage(servicePage);
    Q_EMIT hint(QString::fromLatin1("Service page: %1").arg(QLatin1String(on ? "on" : "off")));
}
