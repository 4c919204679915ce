#ifndef GALLERY_PICTURESSCREEN_H
#define GALLERY_PICTURESSCREEN_H

#include "gallerywidgets.h"

#include <QStringList>

class Panel;

/// One picture of the collection with its name and size, made smaller when it does not fit.
class PictureCell : public CWidget
{
    Q_OBJECT

public:
    explicit PictureCell(QWidget* parent);

    QString name() const;
    void setName(const QString& name);
    void updateWidgetStyle() override;

Q_SIGNALS:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_name;
    QPixmap m_picture;
    bool m_onDark;
};

/// A picture in its own size, opened above the catalogue.
class PictureScreen : public Screen
{
    Q_OBJECT

public:
    explicit PictureScreen(Panel* panel);

    void setName(const QString& name);

private:
    CLabel* m_caption;
    CWidget* m_light;
    CWidget* m_dark;
};

/// All pictures of the library, a page at a time.
class PicturesScreen : public Screen
{
    Q_OBJECT

public:
    explicit PicturesScreen(Panel* panel);

private Q_SLOTS:
    void previousPage();
    void nextPage();
    void openPicture();

private:
    int pageCount() const;
    void addPager(int y);
    void showPage(int page);

    Panel* m_panel;
    PictureScreen* m_detail;
    QStringList m_names;
    QList<PictureCell*> m_cells;
    CLabel* m_position;
    int m_page;
};

#endif
