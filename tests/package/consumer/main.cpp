#include <CPushButton>
#include <CWidgetStyle>
#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const bool styled = CWidgetStyle::initialize(QString::fromLocal8Bit(argv[1]));
    CPushButton button;
    button.setStyle(CPushButton::GreenStyle, true);
    return styled && button.font().bold() && !button.getBackground().isNull() ? 0 : 1;
}
