#ifndef GALLERY_MONKEY_H
#define GALLERY_MONKEY_H

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <random>

class Panel;

/// Touches, types, plugs and restyles without sense, the same way for the same seed, and sees that
/// the panel neither warns nor grows.
///
/// Each step begins from the event loop, that of a keypad included. What is in use is counted
/// twice, in the middle and at the end, with the panel brought to the same state: there may be no
/// more objects and open files and, from 10,000 steps up, at most 1 MB more of memory.
class Monkey : public QObject
{
    Q_OBJECT

public:
    Monkey(Panel* panel, int steps, unsigned int seed);

    /// Takes all steps. Returns whether all went well; else, what went wrong has been printed with
    /// the seed and the step.
    bool run();

private Q_SLOTS:
    void step();

private:
    struct Usage {
        Usage() : memory(0), objects(0), files(0)
        {
        }

        qint64 memory; // bytes; 0 where the system does not tell
        int objects;
        int files;
    };

    typedef void (Monkey::*Action)();
    struct ActionRow;

    static const ActionRow s_actions[];

    void stepLater();
    void act();
    void settle();
    bool closeWhatIsOpen();
    void emptyFields();
    void completeBoxes();
    Usage usage() const;
    void compare(const Usage& end);
    void checkWarnings(const char* action);
    void fail(const QString& what);

    void touch();
    void touchTwice();
    void drag();
    void type();
    void changeScreen();
    void plug();
    void restyle();

    typedef QPointer<QWidget> Target; // what is touched may die of it

    int below(int count);
    QPoint pointIn(const QSize& size);
    Target chooseTarget(QPoint* point);
    void send(const Target& target, int type, const QPoint& point);

    Panel* m_panel;
    int m_steps;
    unsigned int m_seed;
    std::mt19937 m_random;
    int m_step;
    int m_depth;
    bool m_settling;
    bool m_finished;
    bool m_failed;
    Usage m_middle;

    Q_DISABLE_COPY(Monkey)
};

#endif
