#ifndef CWIDGET_WIDGETS_PUSHBUTTON_H
#define CWIDGET_WIDGETS_PUSHBUTTON_H

#include "../style/global.h"
#include "../style/style.h"

#include <QColor>
#include <QMap>
#include <QPixmap>
#include <QPushButton>
#include <QVariant>

class QPainter;
class ShapedText;

/// The touch button: a background of a colour, a border, a picture that fills it, an icon and a
/// text. For each of its states it may have a picture and a text colour, which the state brings up.
///
/// The text that it shows is its own: setText() and getText() reach it through a pointer of this
/// class, and so does the property "text". That of Qt's button, which QPushButton::text() returns
/// and which a pointer of that class sets, is never shown.
class CWIDGET_EXPORT CPushButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QString text READ getText WRITE setText)
    Q_PROPERTY(int textSize READ getTextSize WRITE setTextSize)
    Q_PROPERTY(ButtonStyle buttonStyle READ buttonStyle WRITE setButtonStyle)
    Q_PROPERTY(bool normalSize READ isNormalSize WRITE setNormalSize)
    Q_PROPERTY(QColor textColor READ getTextColor WRITE setTextColor)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)
    Q_ENUMS(ButtonStyle)

public:
    /// What the button shows.
    enum ButtonState : int {
        Pressed = 0,
        Released = 1,
        Selected = 2
    };

    /// What a state brings up: a QPixmap, or a text colour as a QColor or by its name.
    enum ExtraAttr : int {
        PressedPixmap = 1,
        ReleasedPixmap = 2,
        SelectedPixmap = 3,
        PressedTextColor = 4,
        ReleasedTextColor = 5,
        SelectedTextColor = 6
    };

    /// Ready-made sets of pictures.
    enum ButtonStyle
#ifndef Q_MOC_RUN // Qt 4's reads no underlying type
        : int
#endif
    {
        NoStyle = -1,     ///< none of them was set
        DefaultStyle = 0, ///< grey
        GreenStyle = 1,
        OrangeStyle = 2,
        RedStyle = 3,
        FixedStyle = 4 ///< grey, and pressing does not change it
    };

    explicit CPushButton(QWidget* parent = nullptr);
    ~CPushButton() override;

    bool initialize();

    QString getText() const;
    void setText(const QString& text);
    int getTextSize() const;
    void setTextSize(int size);
    QColor getTextColor() const;
    void setTextColor(const QColor& color);
    QColor getBorderColor() const;
    void setBorderColor(const QColor& color);
    QColor getBackgroundColor() const;
    void setBackgroundColor(const QColor& color);
    QPixmap getBackground() const;
    void setBackground(const QPixmap& pixmap);

    void setExtraAttr(ExtraAttr attr, const QVariant& value);
    void setStyle(ButtonStyle style, bool normalSize);
    using QPushButton::setStyle;
    ButtonStyle buttonStyle() const;
    void setButtonStyle(ButtonStyle style);
    bool isNormalSize() const;
    void setNormalSize(bool normalSize);

    bool isSelected() const;
    void setSelected(bool selected);
    void updateStatus(ButtonState state);

    bool isAutoStyleEnabled() const;
    void setAutoStyleEnabled(bool enabled);
    void setWidgetStyle(WidgetStyle style);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QPixmap iconPixmap() const;
    QRect iconRect() const;
    QRect textRect(bool hasIcon) const;
    const char* heldSignal(const char* signal) const;
    void drawBackgroundColor(QPainter* painter);
    void drawBorder(QPainter* painter);
    void drawBackgroundPixmap(QPainter* painter);
    void drawIcon(QPainter* painter, const QPixmap& pixmap);
    void drawText(QPainter* painter, bool hasIcon);

    bool m_selected;
    int m_textSize;
    QString m_text;
    QColor m_textColor;
    QColor m_borderColor;
    QColor m_backgroundColor;
    QPixmap m_background;
    QMap<ExtraAttr, QVariant> m_extraAttrs;
    ButtonStyle m_buttonStyle;
    bool m_normalSize;
    bool m_autoStyleEnabled;
    bool m_looksPressed;
    ShapedText* m_shapedText;

    Q_DISABLE_COPY(CPushButton)
};

#endif
