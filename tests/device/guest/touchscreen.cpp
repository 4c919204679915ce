// The guest's touch screen: a multi-touch device (type B) made through /dev/uinput, moved by the
// lines that come in through a pipe, and a look at what it does to the frame buffer, in the guest's
// time.
//
// usage: touchscreen WIDTH HEIGHT COMMANDS ANSWERS
//
//   down SLOT X Y | move SLOT X Y | up SLOT   a finger; seen with the next sync
//   sync                                      what was done since the last one, at once
//   wait MS
//   watch X Y W H MS     like sync; answers how long it took until a pixel there changed, in us,
//                        or -1 when none did for so long
//   count X Y W H MS     answers how often the pixels there changed in so long
//   done                 answers "done", and ends the line of answers
//
// COMMANDS and ANSWERS are made as pipes. The device's name in /dev/input is answered first.

#include <dirent.h>
#include <fcntl.h>
#include <linux/fb.h>
#include <linux/uinput.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace
{

const int slots = 10;

struct Rect {
    int x, y, width, height;
};

int64_t microseconds()
{
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<int64_t>(now.tv_sec) * 1000000 + now.tv_nsec / 1000;
}

void check(bool good, const char* what)
{
    if (good)
        return;
    perror(what);
    exit(1);
}

/// The frame buffer as it is mapped by every program that paints on it.
class Screen
{
public:
    Screen() : m_pixels(nullptr), m_lineLength(0)
    {
        const int file = open("/dev/fb0", O_RDONLY);
        fb_fix_screeninfo info;
        check(file >= 0 && ioctl(file, FBIOGET_FSCREENINFO, &info) == 0, "/dev/fb0");
        m_lineLength = info.line_length;
        void* const memory = mmap(nullptr, info.smem_len, PROT_READ, MAP_SHARED, file, 0);
        check(memory != MAP_FAILED, "mapping /dev/fb0");
        m_pixels = static_cast<const unsigned char*>(memory);
    }

    /// A number for what the pixels of \a rect show.
    uint64_t digest(const Rect& rect) const
    {
        uint64_t sum = 14695981039346656037u;
        for (int y = rect.y; y < rect.y + rect.height; ++y) {
            for (int x = rect.x; x < rect.x + rect.width; ++x) {
                uint32_t pixel;
                memcpy(&pixel, m_pixels + y * m_lineLength + x * 4, sizeof pixel);
                sum = (sum ^ (pixel & 0xFFFFFF)) * 1099511628211u;
            }
        }
        return sum;
    }

private:
    const unsigned char* m_pixels;
    unsigned int m_lineLength;
};

class TouchScreen
{
public:
    TouchScreen(int width, int height) : m_device(open("/dev/uinput", O_WRONLY)), m_fingers(0)
    {
        check(m_device >= 0, "/dev/uinput");
        memset(m_down, 0, sizeof m_down);
        ioctl(m_device, UI_SET_EVBIT, EV_KEY);
        ioctl(m_device, UI_SET_EVBIT, EV_ABS);
        ioctl(m_device, UI_SET_KEYBIT, BTN_TOUCH);
        ioctl(m_device, UI_SET_PROPBIT, INPUT_PROP_DIRECT);
        addAxis(ABS_X, width - 1);
        addAxis(ABS_Y, height - 1);
        addAxis(ABS_MT_SLOT, slots - 1);
        addAxis(ABS_MT_TRACKING_ID, 65535);
        addAxis(ABS_MT_POSITION_X, width - 1);
        addAxis(ABS_MT_POSITION_Y, height - 1);
        uinput_setup setup;
        memset(&setup, 0, sizeof setup);
        setup.id.bustype = BUS_I2C;
        strcpy(setup.name, "Bench touch screen");
        check(ioctl(m_device, UI_DEV_SETUP, &setup) == 0, "UI_DEV_SETUP");
        check(ioctl(m_device, UI_DEV_CREATE) == 0, "UI_DEV_CREATE");
    }

    /// The device's name in /dev/input.
    std::string name() const
    {
        std::string found;
        char folder[128] = "/sys/devices/virtual/input/";
        char* const end = folder + strlen(folder);
        check(ioctl(m_device, UI_GET_SYSNAME(64), end) >= 0, "UI_GET_SYSNAME");
        DIR* const entries = opendir(folder);
        check(entries, folder);
        while (const dirent* entry = readdir(entries)) {
            if (strncmp(entry->d_name, "event", 5) == 0)
                found = entry->d_name;
        }
        closedir(entries);
        return found;
    }

    void put(int slot, int x, int y)
    {
        static int nextId = 1;
        send(EV_ABS, ABS_MT_SLOT, slot);
        if (!m_down[slot]) {
            send(EV_ABS, ABS_MT_TRACKING_ID, nextId++ % 65536);
            m_down[slot] = true;
            if (m_fingers++ == 0)
                send(EV_KEY, BTN_TOUCH, 1);
        }
        send(EV_ABS, ABS_MT_POSITION_X, x);
        send(EV_ABS, ABS_MT_POSITION_Y, y);
        send(EV_ABS, ABS_X, x);
        send(EV_ABS, ABS_Y, y);
    }

    void lift(int slot)
    {
        if (!m_down[slot])
            return;
        send(EV_ABS, ABS_MT_SLOT, slot);
        send(EV_ABS, ABS_MT_TRACKING_ID, -1);
        m_down[slot] = false;
        if (--m_fingers == 0)
            send(EV_KEY, BTN_TOUCH, 0);
    }

    void sync()
    {
        send(EV_SYN, SYN_REPORT, 0);
    }

private:
    void addAxis(int code, int maximum)
    {
        uinput_abs_setup axis;
        memset(&axis, 0, sizeof axis);
        axis.code = static_cast<uint16_t>(code);
        axis.absinfo.maximum = maximum;
        check(ioctl(m_device, UI_ABS_SETUP, &axis) == 0, "UI_ABS_SETUP");
    }

    void send(int type, int code, int value)
    {
        input_event event;
        memset(&event, 0, sizeof event);
        event.type = static_cast<uint16_t>(type);
        event.code = static_cast<uint16_t>(code);
        event.value = value;
        check(write(m_device, &event, sizeof event) == sizeof event, "a touch");
    }

    int m_device;
    int m_fingers;
    bool m_down[slots];
};

int64_t timeToChange(TouchScreen* touch, const Screen& screen, const Rect& rect, int milliseconds)
{
    const uint64_t before = screen.digest(rect);
    const int64_t start = microseconds();
    touch->sync();
    int64_t now = start;
    while (now - start < milliseconds * 1000LL) {
        const bool changed = screen.digest(rect) != before;
        now = microseconds();
        if (changed)
            return now - start;
        usleep(200);
    }
    return -1;
}

/// The digest of \a rect as soon as it stands still: a picture that is half painted is none.
uint64_t settledDigest(const Screen& screen, const Rect& rect)
{
    uint64_t next = screen.digest(rect);
    uint64_t last;
    do {
        last = next;
        usleep(1000);
        next = screen.digest(rect);
    } while (next != last);
    return next;
}

int changes(const Screen& screen, const Rect& rect, int milliseconds)
{
    const int64_t end = microseconds() + milliseconds * 1000LL;
    int count = 0;
    for (uint64_t last = settledDigest(screen, rect); microseconds() < end;) {
        const uint64_t next = settledDigest(screen, rect);
        count += next != last;
        last = next;
    }
    return count;
}

/// Does what \a line says. What it answers is written to \a answers.
void obey(const char* line, TouchScreen* touch, const Screen& screen, FILE* answers)
{
    char word[16] = "";
    int numbers[5] = {0, 0, 0, 0, 0};
    sscanf(line, "%15s %d %d %d %d %d", word, numbers, numbers + 1, numbers + 2, numbers + 3,
           numbers + 4);
    const Rect rect = {numbers[0], numbers[1], numbers[2], numbers[3]};
    if (strcmp(word, "down") == 0 || strcmp(word, "move") == 0)
        touch->put(numbers[0], numbers[1], numbers[2]);
    else if (strcmp(word, "up") == 0)
        touch->lift(numbers[0]);
    else if (strcmp(word, "sync") == 0)
        touch->sync();
    else if (strcmp(word, "wait") == 0)
        usleep(static_cast<useconds_t>(numbers[0]) * 1000);
    else if (strcmp(word, "watch") == 0)
        fprintf(answers, "%lld ",
                static_cast<long long>(timeToChange(touch, screen, rect, numbers[4])));
    else if (strcmp(word, "count") == 0)
        fprintf(answers, "%d ", changes(screen, rect, numbers[4]));
    else if (strcmp(word, "done") == 0)
        fprintf(answers, "done\n");
    fflush(answers);
}

FILE* pipeAt(const char* path)
{
    mkfifo(path, 0600);
    // Both ends, so that it never ends.
    FILE* const pipe = fopen(path, "r+");
    check(pipe, path);
    return pipe;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 5) {
        fprintf(stderr, "usage: touchscreen WIDTH HEIGHT COMMANDS ANSWERS\n");
        return 2;
    }
    const Screen screen;
    TouchScreen touch(atoi(argv[1]), atoi(argv[2]));
    FILE* const commands = pipeAt(argv[3]);
    FILE* const answers = pipeAt(argv[4]);
    fprintf(answers, "%s\n", touch.name().c_str());
    fflush(answers);
    char line[256];
    while (fgets(line, sizeof line, commands))
        obey(line, &touch, screen, answers);
    return 0;
}
