#ifndef CWIDGET_WIDGETS_SHEETFONT_P_H
#define CWIDGET_WIDGETS_SHEETFONT_P_H

class QFont;
class QWidget;

// Controls with a style sheet of their own take it off to set their font, as a sheet may hide it,
// and put it on again, which costs more than all the rest of such a control.
namespace sheetfont
{

bool isStyledBy(const QWidget* widget, const char* sheet);
bool hasFont(const QWidget* widget, const QFont& font);

} // namespace sheetfont

#endif
