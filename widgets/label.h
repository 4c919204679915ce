#ifndef CWIDGET_WIDGETS_LABEL_H
#define CWIDGET_WIDGETS_LABEL_H

#include "widgets/widget.h"

class QPainter;

/// A text, wrapped character by character if wanted, and a second one in the right corner, for
/// example a unit. A finger lifted from the label is a click.
class CWIDGET_EXPORT CLabel : public CWidget
{
    Q_OBJECT

public:
    enum WrapMode : int {
        NoWrap = 0,   ///< one line, placed by the alignment
        WordWrap = 1, ///< breaks before a word that does not fit
        CharWrap = 2  ///< breaks before a character that does not fit
    };

    explicit CLabel(QWidget* parent = 0);
    ~CLabel() override;

    bool initialize() override;

    QString text() const;
    void setText(const QString& text);
    QString cornerText() const;
    void setCornerText(const QString& text);
    void setTextColor(const QColor& color);
    void setTextSize(int size);
    void setAlignment(Qt::Alignment alignment);
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
