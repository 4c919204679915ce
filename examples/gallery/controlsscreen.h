#ifndef GALLERY_CONTROLSSCREEN_H
#define GALLERY_CONTROLSSCREEN_H

#include "gallerywidgets.h"

class Panel;

/// Buttons in every style and state, with icons; labels in every wrap mode and with corner texts.
class ControlsScreen : public Screen
{
    Q_OBJECT

public:
    explicit ControlsScreen(Panel* panel);

Q_SIGNALS:
    void hint(const QString& text);

private Q_SLOTS:
    void buttonClicked();
    void labelClicked();

private:
    void addStyles(int y);
    void addStates(int y);
    void addIcons(int y);
    void addWrapModes(int y);
    void addCornerTexts(int y);

    int m_clicks;
};

#endif
