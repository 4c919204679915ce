#ifndef CWIDGET_PAGES_PAGEBAR_H
#define CWIDGET_PAGES_PAGEBAR_H

#include "../style/widgetstyle.h"
#include "../widgets/widget.h"

class CPushButton;

/// The strip under pages: an arrow back, "Page 2 of 5", an arrow forward. It counts pages and knows
/// nothing of what they hold; whoever holds them follows pageChanged().
class CWIDGET_EXPORT CPageBar : public CWidget
{
    Q_OBJECT
    Q_PROPERTY(int count READ count WRITE setCount)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex)
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CPageBar(QWidget* parent = nullptr,
                      CWidgetStyle::PageBarType type = CWidgetStyle::HorizontalPageBar);
    ~CPageBar() override;

    int count() const;
    int currentIndex() const;

    void setCount(int count);
    void addPage();
    void removePage(int index);
    void clear();

    void setText();
    QColor textColor() const;
    void setTextColor(const QColor& color);
    void setBackgroundColor(const QColor& color);

public Q_SLOTS:
    void setCurrentIndex(int index);
    void update();
    void leftClicked();
    void rightClicked();

Q_SIGNALS:
    /// An arrow was clicked; \a index is the page that is shown now, from 0.
    void pageChanged(int index);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class CPageListWidget; // counts thousands of pages at once

    void buildHorizontal();
    void buildVertical();
    void addPages(int count);
    void turnTo(int index);
    QRect turnedViewport() const;
    void drawText();

    int m_count;
    int m_currentIndex;
    QString m_text;
    QColor m_textColor;
    CPushButton* m_leftButton;
    CPushButton* m_rightButton;
    CWidgetStyle::PageBarType m_type;

    Q_DISABLE_COPY(CPageBar)
};

#endif
