// A settings page: parameters as rows of a name and a value, and what happens when the user changes
// one of them. The mode decides whether there is a set point.
//
// usage: settings-page [STYLE-FILE]

#include "stylefile.h"

#include <CLabel>
#include <CParmCheckBox>
#include <CParmComboBox>
#include <CParmLabel>
#include <CParmLineEdit>
#include <CWidgetStyle>
#include <QApplication>
#include <QVBoxLayout>

#include <cstdio>

namespace
{

enum Mode {
    Off,
    Auto,
    Manual,
    Holiday
};

const char modeNames[] = "Off,Auto,Manual,Holiday";
const int rowWidth = 420;
const int pageHeight = 270;
const int margin = 30;
const int spacing = 10;

} // namespace

class SettingsPage : public CWidget
{
    Q_OBJECT

public:
    SettingsPage();

private Q_SLOTS:
    void setPointEdited(const QString& text);
    void modeChosen(int mode);
    void sensorChanged(int state);

private:
    CParmLabel* m_temperature;
    CParmLineEdit* m_setPoint;
    CParmComboBox* m_mode;
    CParmCheckBox* m_sensor;
    CLabel* m_report;
};

SettingsPage::SettingsPage()
    : m_temperature(new CParmLabel(QLatin1String("Temperature"), QString::fromUtf8("21.4 \xC2\xB0"
                                                                                   "C"))),
      m_setPoint(new CParmLineEdit(QLatin1String("Set point"), QLatin1String("22"))),
      m_mode(new CParmComboBox(QLatin1String("Mode"),
                               QString::fromLatin1(modeNames).split(QLatin1Char(',')),
                               QLatin1String("Manual"))),
      m_sensor(new CParmCheckBox(QLatin1String("Window sensor"), QLatin1String("attached"))),
      m_report(new CLabel)
{
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::PanelBackgroundColor));
    m_temperature->setWidth(rowWidth, Proportion1To1);
    m_setPoint->setWidth(rowWidth, Proportion1To1);
    m_setPoint->setSKPType(CKeyPadFactory::SKP_DECIMAL);
    m_setPoint->setRange(5, 30);
    m_mode->setWidth(rowWidth);
    m_sensor->setWidth(rowWidth);
    m_report->setAlignment(Qt::AlignCenter);

    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(spacing);
    layout->addWidget(m_temperature);
    layout->addWidget(m_mode);
    layout->addWidget(m_setPoint);
    layout->addWidget(m_sensor);
    layout->addStretch();
    layout->addWidget(m_report);

    connect(m_setPoint, SIGNAL(textEdited(QString)), this, SLOT(setPointEdited(QString)));
    connect(m_mode, SIGNAL(activated(int)), this, SLOT(modeChosen(int)));
    connect(m_sensor, SIGNAL(stateChanged(int)), this, SLOT(sensorChanged(int)));
    m_report->setText(QLatin1String("Touch a value to change it"));
    setSize(rowWidth + 2 * margin, pageHeight);
}

void SettingsPage::setPointEdited(const QString& text)
{
    m_report->setText(QString::fromLatin1("The set point is now %1").arg(text));
}

void SettingsPage::modeChosen(int mode)
{
    m_setPoint->setEnable(mode == Manual);
    m_report->setText(QString::fromLatin1("The mode is now %1").arg(m_mode->currentText()));
}

void SettingsPage::sensorChanged(int state)
{
    m_report->setText(QLatin1String(state == Qt::Checked ? "The window sensor is attached"
                                                         : "There is no window sensor"));
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QString style = arguments.value(1, shippedStyleFile());
    if (!CWidgetStyle::initialize(style)) // before any widget is made
        fprintf(stderr, "The style file %s cannot be read.\n", qPrintable(style));
    SettingsPage page;
    page.show();
    return QApplication::exec();
}

#include "main.moc"
