// Two threads write the same number without any order: the Thread sanitizer must say so, or the
// silence of the tests means nothing.

#include <QCoreApplication>
#include <QThread>

#include <cstdio>

namespace
{

class Writer : public QThread
{
public:
    Writer() : number(0)
    {
    }

    void run() override
    {
        number = 1;
    }

    volatile int number;
};

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    Writer writer;
    writer.start();
    writer.number = 2;
    writer.wait();
    std::printf("written by one of the two: %d\n", writer.number);
    return 0;
}
