// Step 2: the button does something.

#include <CClockProgress>
#include <CLabel>
#include <CPushButton>
#include <CWidget>
#include <CWidgetStyle>
#include <QApplication>
#include <QVBoxLayout>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CWidgetStyle::initialize(application.arguments().value(1));

    CWidget panel;
    panel.setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::PanelBackgroundColor));
    CLabel* status = new CLabel;
    status->setText("Pump 1");
    status->setCornerText("21.4");
    CPushButton* start = new CPushButton;
    start->setStyle(CPushButton::GreenStyle, true);
    start->setText("Start");
    CClockProgress* busy = new CClockProgress; // hidden until it starts

    QVBoxLayout* layout = new QVBoxLayout(&panel);
    layout->addWidget(status);
    layout->addStretch();
    layout->addWidget(busy, 0, Qt::AlignCenter);
    layout->addWidget(start, 0, Qt::AlignCenter);
    QObject::connect(start, SIGNAL(clicked()), busy, SLOT(show()));
    QObject::connect(start, SIGNAL(clicked()), busy, SLOT(roll()));
    panel.setSize(400, 240);
    panel.show();
    return application.exec();
}
