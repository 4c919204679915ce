#ifndef GALLERY_GALLERYWIDGETS_H
#define GALLERY_GALLERYWIDGETS_H

#include <CLabel>
#include <CPushButton>

/// Measures that all screens share, in pixels. Everything stands on a grid of 4.
namespace layout
{

const int margin = 24; // left and right of what a screen shows
const int firstHeading = 16;
const int headingHeight = 28;
const int buttonWidth = 120; // buttons have the size of their pictures
const int buttonHeight = 40;
const int buttonPitch = 128;
const int lastButton = 456; // a screen's main button stands at its bottom right

} // namespace layout

/// The title of a group of widgets on a screen: larger than a label, of the style's family.
class Heading : public CLabel
{
    Q_OBJECT

public:
    Heading(const QString& text, QWidget* parent);

    void updateWidgetStyle() override;
};

/// A screen of the panel, between menu column and right edge, managed by the widget stack.
class Screen : public CWidget
{
    Q_OBJECT

public:
    Screen(const QString& title, QWidget* parent);

    QString title() const;

    /// Told when the screen is to be drawn into a picture: stops what moves.
    virtual void prepareShot();

protected:
    int contentWidth() const;
    Heading* addHeading(const QString& text, int y, int x = layout::margin);
    CLabel* addCaption(const QString& text, const QRect& place);
    CPushButton* addButton(const QString& text, CPushButton::ButtonStyle style,
                           const QPoint& corner);

    /// The one green button of a screen, at its bottom right.
    CPushButton* addMainButton(const QString& text);

private:
    QString m_title;
};

/// The background of all screens and pages.
QColor screenColor();

/// For texts that explain others.
QColor captionColor();

/// A label without a background of its own.
CLabel* plainLabel(const QString& text, QWidget* parent);

/// Disables a button and lets it recede: a flat plate, a dim text, a dim icon. The library has no
/// picture for that; an application draws the plate.
void disableButton(CPushButton* button);

#endif
