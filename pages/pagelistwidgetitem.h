#ifndef CWIDGET_PAGES_PAGELISTWIDGETITEM_H
#define CWIDGET_PAGES_PAGELISTWIDGETITEM_H

#include "../widgets/widget.h"

#include <QIcon>

class QPainter;

/// One row of a paged list: an icon at the left edge and a text at the right, on the colour of the
/// selected row or of the row under the finger. What a touch means is up to the area of the rows,
/// which gets the mouse events of a row.
class CWIDGET_EXPORT CPageListWidgetItem : public CWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(int index READ index WRITE setIndex)
    Q_PROPERTY(bool selected READ isSelected WRITE setSelect)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(bool autoStyleEnabled READ isAutoStyleEnabled WRITE setAutoStyleEnabled)

public:
    explicit CPageListWidgetItem(QWidget* parent);
    explicit CPageListWidgetItem(const QString& text, QWidget* parent = nullptr);
    CPageListWidgetItem(const QIcon& icon, const QString& text, QWidget* parent = nullptr);
    ~CPageListWidgetItem() override;

    bool initialize() override;

    int index() const;
    void setIndex(int index);
    QString text() const;
    void setText(const QString& text);
    bool isActive() const;
    void setActive(bool active);

    bool isSelected() const;
    void setSelect(bool selected);
    void setHoverIn();
    void setHoverOut();
    void clear();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void setHover(bool hover);
    QRectF iconRect() const;
    QRect textRect() const;
    void drawGround(QPainter* painter);
    void drawIcon(QPainter* painter);
    void drawText(QPainter* painter);

    int m_index;
    QString m_text;
    QIcon m_icon;
    bool m_selected;
    bool m_hover;
    bool m_active;
    QColor m_selectColor;
    QColor m_hoverColor;

    Q_DISABLE_COPY(CPageListWidgetItem)
};

#endif
