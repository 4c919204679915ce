// Step 1: a window with a button.

#include <CPushButton>
#include <CWidget>
#include <CWidgetStyle>
#include <QApplication>
#include <QVBoxLayout>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CWidgetStyle::initialize(application.arguments().value(1)); // before the first widget

    CWidget panel;
    panel.setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::PanelBackgroundColor));
    CPushButton* start = new CPushButton;
    start->setStyle(CPushButton::GreenStyle, true);
    start->setText("Start");

    QVBoxLayout* layout = new QVBoxLayout(&panel);
    layout->addWidget(start, 0, Qt::AlignCenter);
    panel.setSize(400, 240);
    panel.show();
    return application.exec();
}
