#ifndef GALLERY_THEMESCREEN_H
#define GALLERY_THEMESCREEN_H

#include "gallerywidgets.h"

#include <QList>

class Panel;

/// Font families to choose from: a touch rewrites the style file, and the panel takes it over while
/// it runs. Below, the colours of the palette.
class ThemeScreen : public Screen
{
    Q_OBJECT

public:
    explicit ThemeScreen(Panel* panel);

    static QStringList families();

private Q_SLOTS:
    void familyClicked();

private:
    void addFamilies(int y);
    void addPalette(int y);
    void showCurrent();

    Panel* m_panel;
    QList<CPushButton*> m_families;
};

#endif
