#ifndef GALLERY_SHOTWRITER_H
#define GALLERY_SHOTWRITER_H

#include <QDir>
#include <QObject>

class Panel;

/// Draws the panel, with a window that stands over it, into picture files.
class ShotWriter : public QObject
{
    Q_OBJECT

public:
    ShotWriter(Panel* panel, const QString& folder);

    bool isGood() const;
    void write(const QString& name, QWidget* above = nullptr);

    /// The picture that the next keypad is drawn into when it has opened; it is closed then.
    void expectKeypad(const QString& name);

private Q_SLOTS:
    void writeKeypad();

private:
    Panel* m_panel;
    QDir m_folder;
    bool m_good;
    QString m_keypadName;

    Q_DISABLE_COPY(ShotWriter)
};

#endif
