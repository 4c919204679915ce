#include "shotwriter.h"

#include "panel.h"

#include <QApplication>
#include <QDialog>
#include <QPainter>
#include <QTimer>

#include <cstdio>

ShotWriter::ShotWriter(Panel* panel, const QString& folder)
    : m_panel(panel), m_folder(folder), m_good(QDir().mkpath(folder))
{
}

bool ShotWriter::isGood() const
{
    return m_good;
}

void ShotWriter::write(const QString& name, QWidget* above)
{
    QApplication::processEvents();
    QImage image(m_panel->size(), QImage::Format_RGB32);
    m_panel->render(&image);
    if (above) {
        QPainter painter(&image);
        above->render(&painter, m_panel->mapFromGlobal(above->mapToGlobal(QPoint())));
    }
    const QString path = m_folder.filePath(name + QLatin1String(".png"));
    const bool written = image.save(path);
    m_good = m_good && written;
    fprintf(written ? stdout : stderr, "%s%s\n", written ? "" : "cannot write ", qPrintable(path));
}

void ShotWriter::expectKeypad(const QString& name)
{
    m_keypadName = name;
    QTimer::singleShot(0, this, SLOT(writeKeypad()));
}

void ShotWriter::writeKeypad()
{
    QDialog* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog) {
        m_good = false;
        return;
    }
    write(m_keypadName, dialog);
    dialog->reject();
}
