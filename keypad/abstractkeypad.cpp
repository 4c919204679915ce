#include "keypad/abstractkeypad.h"

#include "keypad/keygrid_p.h"
#include "style/widgetstyle.h"

#include <QEvent>

namespace
{

const int defaultWidth = 560;
const int defaultHeight = 390;

} // namespace

/// An empty black grid of 560 x 390 pixels.
CAbstractKeyPad::CAbstractKeyPad(QWidget* parent) : CWidget(parent)
{
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::KeyPadBackgroundColor));
    setSize(defaultWidth, defaultHeight);
}

CAbstractKeyPad::~CAbstractKeyPad()
{
}

/// The captions follow the language of the application.
void CAbstractKeyPad::changeEvent(QEvent* event)
{
    CWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        keygrid::translate(this);
}
