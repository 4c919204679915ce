#ifndef CWIDGET_WIDGETS_LABEL_H
#define CWIDGET_WIDGETS_LABEL_H

#include "widget.h"

class QPainter;

/// A text, wrapped character by character on request, and a second one in the right corner, for
/// example a unit. A finger lifted from the label is a click.
class CWIDGET_EXPORT CLabel : public CWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString cornerText READ cornerText WRITE setCornerText)
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
    Q_PROPERTY(int textSize READ textSize WRITE setTextSize)
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
    Q_PROPERTY(WrapMode wrapMode READ wrapMode WRITE setWrapMode)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)
    Q_ENUMS(WrapMode)

public:
    /// How a text that is too long for the label is broken.
    enum WrapMode
#ifndef Q_MOC_RUN // Qt 4's reads no underlying type
        : int
#endif
    {
        NoWrap = 0,   ///< one line, placed by the alignment
        WordWrap = 1, ///< breaks before a word that does not fit
        CharWrap = 2  ///< breaks before a character that does not fit
    };

    explicit CLabel(QWidget* parent = nullptr);
    ~CLabel() override;

    bool initialize() override;

    QString text() const;
    void setText(const QString& text);
    QString cornerText() const;
    void setCornerText(const QString& text);
    QColor textColor() const;
    void setTextColor(const QColor& color);
    int textSize() const;
    void setTextSize(int size);
    Qt::Alignment alignment() const;
    void setAlignment(Qt::Alignment alignment);
    WrapMode wrapMode() const;
    void setWrapMode(WrapMode mode);

    bool isAutoStyleEnabled() const;
    void setAutoStyleEnabled(bool enabled);
    void setWidgetStyle(WidgetStyle style);

Q_SIGNALS:
    /// A finger was lifted after it touched the label, wherever that was.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRect textRect() const;
    void drawText(QPainter* painter);
    void drawCornerText(QPainter* painter);

    int m_textSize;
    QString m_text;
    QString m_cornerText;
    QColor m_textColor;
    Qt::Alignment m_alignment;
    bool m_autoStyleEnabled;
    WrapMode m_wrapMode;
    int m_leftMargin;
    int m_rightMargin;
    int m_lineHeight;

    Q_DISABLE_COPY(CLabel)
};

#endif
