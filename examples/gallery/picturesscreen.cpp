#include "picturesscreen.h"

#include "panel.h"

#include <CWidgetStyle>
#include <QDir>
#include <QPainter>

namespace
{

const char folder[] = ":/images/";

const int left = layout::margin;
const int columns = 4;
const int rows = 4;
const QSize cellSize(152, 100);
const QSize pitch(160, 108);
const int captionHeight = 34;
const int mostGray = 136; // of a picture for light backgrounds, of 255
const QColor lightColor(0xE7, 0xE9, 0xEB);
const QColor darkColor(0x2B, 0x2E, 0x3B);
const int cellMargin = 6;

QPixmap pictureOf(const QString& name)
{
    return QPixmap(QLatin1String(folder) + name);
}

/// Whether a picture is a light sign, which wants a dark background.
bool isLight(const QPixmap& picture)
{
    const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    qint64 lightness = 0;
    qint64 weight = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            lightness += qint64(qGray(image.pixel(x, y))) * qAlpha(image.pixel(x, y));
            weight += qAlpha(image.pixel(x, y));
        }
    }
    return lightness > mostGray * weight;
}

QString sizeText(const QPixmap& picture)
{
    return QString::fromLatin1("%1 x %2").arg(picture.width()).arg(picture.height());
}

QFont captionFont(const QFont& base, bool bold)
{
    QFont font(base);
    font.setPixelSize(11);
    font.setBold(bold);
    return font;
}

} // namespace

// ---- PictureCell

PictureCell::PictureCell(QWidget* parent) : CWidget(parent), m_onDark(false)
{
    setSize(cellSize);
    setBackgroundColor(Qt::white);
    setBorderColor(CWidgetStyle::getColor(CWidgetStyle::Color7));
    setBorderWidth(1);
    PictureCell::updateWidgetStyle();
}

/// Captions have the font of labels, only smaller.
void PictureCell::updateWidgetStyle()
{
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CLabel")));
}

QString PictureCell::name() const
{
    return m_name;
}

void PictureCell::setName(const QString& name)
{
    m_name = name;
    m_picture = name.isEmpty() ? QPixmap() : pictureOf(name);
    m_onDark = isLight(m_picture);
    setVisible(!name.isEmpty());
    update();
}

void PictureCell::mousePressEvent(QMouseEvent*)
{
    // Accepted, so that the release comes here too.
}

void PictureCell::mouseReleaseEvent(QMouseEvent*)
{
    Q_EMIT clicked();
}

void PictureCell::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    const QRect swatch(1, 1, width() - 2, height() - captionHeight - 1);
    painter.fillRect(swatch, m_onDark ? darkColor : lightColor);
    const QRect room = swatch.adjusted(cellMargin, cellMargin, -cellMargin, -cellMargin);
    QSize size = m_picture.size();
    if (size.width() > room.width() || size.height() > room.height())
        size.scale(room.size(), Qt::KeepAspectRatio);
    QRect place(QPoint(), size);
    place.moveCenter(room.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, size != m_picture.size());
    painter.drawPixmap(place, m_picture);

    const QRect caption(5, swatch.bottom() + 2, width() - 10, captionHeight / 2);
    painter.setPen(darkColor);
    painter.setFont(captionFont(font(), true));
    painter.drawText(
        caption, Qt::AlignLeft | Qt::AlignVCenter,
        QFontMetrics(painter.font()).elidedText(m_name, Qt::ElideMiddle, caption.width()));
    painter.setPen(captionColor());
    painter.setFont(captionFont(font(), false));
    painter.drawText(caption.translated(0, 15), Qt::AlignLeft | Qt::AlignVCenter,
                     sizeText(m_picture));
}

// ---- PictureScreen

PictureScreen::PictureScreen(Panel* panel) : Screen(QLatin1String("Picture"), panel)
{
    m_caption = addHeading(QString(), layout::firstHeading);
    m_light = new CWidget(this);
    m_light->setBackgroundColor(Qt::white);
    m_light->setGeometry(left, 52, contentWidth(), 216);
    m_dark = new CWidget(this);
    m_dark->setBackgroundColor(darkColor);
    m_dark->setGeometry(left, 280, contentWidth(), 216);
}

void PictureScreen::setName(const QString& name)
{
    const QPixmap picture = pictureOf(name);
    m_caption->setText(QString::fromLatin1("%1, %2").arg(name, sizeText(picture)));
    m_light->setBackground(picture);
    m_dark->setBackground(picture);
}

// ---- PicturesScreen

PicturesScreen::PicturesScreen(Panel* panel)
    : Screen(QLatin1String("Pictures"), panel), m_panel(panel), m_page(0)
{
    m_detail = new PictureScreen(panel);
    m_detail->move(CWidgetStyle::getSize(CWidgetStyle::LeftColumnSize).width(),
                   CWidgetStyle::getSize(CWidgetStyle::TopBarSize).height());
    m_names = QDir(QLatin1String(folder)).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (int i = 0; i < columns * rows; ++i) {
        PictureCell* cell = new PictureCell(this);
        cell->move(left + i % columns * pitch.width(), 16 + i / columns * pitch.height());
        connect(cell, SIGNAL(clicked()), this, SLOT(openPicture()));
        m_cells.append(cell);
    }
    addPager(layout::lastButton);
    showPage(0);
}

int PicturesScreen::pageCount() const
{
    return (m_names.size() + columns * rows - 1) / (columns * rows);
}

void PicturesScreen::addPager(int y)
{
    const struct {
        const char* name;
        const char* slot;
        const char* icon;
        int x;
    } buttons[] = {
        {"previous-pictures", SLOT(previousPage()), ":/images/back.png", left},
        {"next-pictures", SLOT(nextPage()), ":/images/Forward.png",
         width() - left - layout::buttonWidth},
    };
    for (int i = 0; i < 2; ++i) {
        CPushButton* button =
            addButton(QString(), CPushButton::DefaultStyle, QPoint(buttons[i].x, y));
        button->setObjectName(QLatin1String(buttons[i].name));
        button->setIcon(QIcon(QLatin1String(buttons[i].icon)));
        button->setIconSize(QSize(30, 30));
        connect(button, SIGNAL(clicked()), this, buttons[i].slot);
    }
    m_position = plainLabel(QString(), this);
    m_position->setAlignment(Qt::AlignCenter);
    m_position->setGeometry(left + layout::buttonPitch, y + 4,
                            contentWidth() - 2 * layout::buttonPitch, 32);
}

void PicturesScreen::showPage(int page)
{
    m_page = (page + pageCount()) % pageCount();
    for (int i = 0; i < m_cells.size(); ++i)
        m_cells.at(i)->setName(m_names.value(m_page * columns * rows + i));
    m_position->setText(QString::fromLatin1("%1 pictures, page %2 of %3")
                            .arg(m_names.size())
                            .arg(m_page + 1)
                            .arg(pageCount()));
}

void PicturesScreen::previousPage()
{
    showPage(m_page - 1);
}

void PicturesScreen::nextPage()
{
    showPage(m_page + 1);
}

void PicturesScreen::openPicture()
{
    m_detail->setName(qobject_cast<PictureCell*>(sender())->name());
    m_panel->openAbove(m_detail);
}
