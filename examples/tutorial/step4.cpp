// Step 4: two pages, and a keypad that stays away while a keyboard is plugged in.

#include <CHotplugWatcher>
#include <CLabel>
#include <CPageWidget>
#include <CParmComboBox>
#include <CParmLineEdit>
#include <CWidgetStyle>
#include <QApplication>
#include <QVBoxLayout>

class Panel : public CPageWidget
{
    Q_OBJECT

public:
    Panel() : m_status(new CLabel)
    {
        setSize(400, 240); // the pages get their place from it
        CParmLineEdit* setPoint = new CParmLineEdit("Set point", "22");
        setPoint->setSKPType(CKeyPadFactory::SKP_DECIMAL);
        setPoint->setRange(5, 30);
        const QStringList modes = QStringList() << "Off"
                                                << "Auto"
                                                << "Manual";
        CParmComboBox* mode = new CParmComboBox("Mode", modes, "Auto");
        mode->setWidth(360);

        CWidget* settings = new CWidget;
        QVBoxLayout* layout = new QVBoxLayout(settings);
        layout->addWidget(setPoint);
        layout->addWidget(mode);
        layout->addStretch();
        m_status->setText("The set point is 22");
        addPage(settings);
        addPage(m_status);
        connect(setPoint, SIGNAL(textEdited(QString)), this, SLOT(report(QString)));
    }

private Q_SLOTS:
    void report(const QString& text)
    {
        m_status->setText("The set point is " + text);
    }

private:
    CLabel* m_status;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CWidgetStyle::initialize(application.arguments().value(1));
    CHotplugWatcher hotplug; // keeps track of keyboards from here on
    Panel panel;
    panel.show();
    return application.exec();
}
#include "step4.moc"
