// forge PROCESS: tries to tell the panel, and everybody, of a keyboard that is not there, as the
// kernel would tell it. Prints what the kernel says to that.

#include <linux/netlink.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{

const char notification[] = "add@/devices/forged\0ACTION=add\0SUBSYSTEM=input\0NAME=Keyboard";

/// Sends it to the process of the address \a id, or to the groups in \a groups.
void send(const char* whom, unsigned int id, unsigned int groups)
{
    const int sender = socket(AF_NETLINK, SOCK_DGRAM, NETLINK_KOBJECT_UEVENT);
    sockaddr_nl address;
    memset(&address, 0, sizeof address);
    address.nl_family = AF_NETLINK;
    address.nl_pid = id;
    address.nl_groups = groups;
    const ssize_t sent = sendto(sender, notification, sizeof notification, 0,
                                reinterpret_cast<sockaddr*>(&address), sizeof address);
    printf("%s: %s\n", whom, sent < 0 ? strerror(errno) : "sent");
    close(sender);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    send("process", static_cast<unsigned int>(atoi(argv[1])), 0);
    send("group", 0, 1);
    return 0;
}
