#ifndef GALLERY_PANEL_H
#define GALLERY_PANEL_H

#include <CWidget>
#include <QList>
#include <QStringList>

class CLabel;
class CPushButton;
class Screen;
class TitleStrip;

/// The front panel of 800 x 600 pixels: title strip, menu column, the screens, and a bottom bar.
class Panel : public CWidget
{
    Q_OBJECT

public:
    explicit Panel(const QString& styleFile);

    static QStringList screenNames();

    void showScreen(const QString& name);
    Screen* screen(const QString& name) const;
    void freezeTime();
    void setLogging(bool enabled);
    void updateWidgetStyle() override;

public Q_SLOTS:
    void back();
    void openAbove(Screen* screen);
    void setHint(const QString& text);
    void restyle(const QString& family);

private Q_SLOTS:
    void menuPressed();

private:
    void addMenu();
    CPushButton* addEntry(const QString& text, QWidget* parent);
    void addBottomBar();
    void addState(QWidget* bar);
    void updateBars();

    QString m_styleFile;
    TitleStrip* m_strip;
    QList<CPushButton*> m_menu;
    QList<Screen*> m_screens;
    CPushButton* m_back;
    CLabel* m_hint;
    bool m_logging;

    Q_DISABLE_COPY(Panel)
};

#endif
