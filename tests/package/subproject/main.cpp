#include "style/style.h"
#include "widgets/widget.h"

#include <CLabel>
#include <CPushButton>
#include <CWidgetStyle>
#include <QApplication>

#if !defined(APPLICATION_STYLE) || !defined(APPLICATION_WIDGET)
#error the application's own headers were not found
#endif
#if CWIDGET_VERSION < CWIDGET_VERSION_CHECK(1, 0, 0)
#error the library's version is not known
#endif

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const bool styled = CWidgetStyle::initialize(QString::fromLocal8Bit(argv[1]));
    CPushButton button;
    button.setStyle(CPushButton::GreenStyle, true);
    const bool hasPictures = !QPixmap(QString::fromLatin1(":/images/object-locked.png")).isNull();
    return styled && hasPictures && button.font().bold() && !button.getBackground().isNull() ? 0
                                                                                             : 1;
}
