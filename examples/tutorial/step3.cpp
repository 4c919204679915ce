// Step 3: parameters, edited on a keypad and in a list.

#include <CLabel>
#include <CParmComboBox>
#include <CParmLineEdit>
#include <CPushButton>
#include <CWidget>
#include <CWidgetStyle>
#include <QApplication>
#include <QVBoxLayout>

class Panel : public CWidget
{
    Q_OBJECT

public:
    Panel() : m_status(new CLabel)
    {
        setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::PanelBackgroundColor));
        CParmLineEdit* setPoint = new CParmLineEdit("Set point", "22");
        setPoint->setSKPType(CKeyPadFactory::SKP_DECIMAL);
        setPoint->setRange(5, 30);
        setPoint->setWidth(360, Proportion1To2);
        const QStringList modes = QStringList() << "Off"
                                                << "Auto"
                                                << "Manual";
        CParmComboBox* mode = new CParmComboBox("Mode", modes, "Auto");
        mode->setWidth(360);

        QVBoxLayout* layout = new QVBoxLayout(this);
        layout->addWidget(m_status);
        layout->addWidget(setPoint);
        layout->addWidget(mode);
        layout->addStretch();
        connect(setPoint, SIGNAL(textEdited(QString)), this, SLOT(report(QString)));
        setSize(400, 240);
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
    Panel panel;
    panel.show();
    return application.exec();
}

#include "step3.moc"
