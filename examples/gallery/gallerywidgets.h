#ifndef GALLERY_GALLERYWIDGETS_H
#define GALLERY_GALLERYWIDGETS_H

#include <CLabel>
#include <CPushButton>

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
    Heading* addHeading(const QString& text, int y);
    CPushButton* addButton(const QString& text, CPushButton::ButtonStyle style, const QRect& place);

private:
    QString m_title;
};

/// A label without a ground of its own.
CLabel* plainLabel(const QString& text, QWidget* parent);

#endif
