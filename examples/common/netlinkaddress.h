#ifndef EXAMPLES_COMMON_NETLINKADDRESS_H
#define EXAMPLES_COMMON_NETLINKADDRESS_H

#include <linux/netlink.h>
#include <sys/socket.h>

#include <cstring>
#include <unistd.h>

/// Keeps this process's own netlink address free for the hot-plug watcher.
///
/// Without a window system, on linuxfb and eglfs, Qt itself listens for input devices. The first
/// socket of that kind gets the process id as its address, which the watcher asks for. An object
/// of this class, constructed before the QApplication, makes Qt's sockets take other addresses;
/// release() it before the watcher is constructed.
class NetlinkAddress
{
public:
    NetlinkAddress()
        : m_socket(socket(AF_NETLINK, SOCK_DGRAM | SOCK_CLOEXEC, NETLINK_KOBJECT_UEVENT))
    {
        sockaddr_nl address;
        memset(&address, 0, sizeof address);
        address.nl_family = AF_NETLINK;
        address.nl_pid = static_cast<unsigned int>(getpid());
        if (bind(m_socket, reinterpret_cast<sockaddr*>(&address), sizeof address) < 0)
            release(); // somebody has it, then
    }

    ~NetlinkAddress()
    {
        release();
    }

    void release()
    {
        if (m_socket >= 0)
            close(m_socket);
        m_socket = -1;
    }

private:
    NetlinkAddress(const NetlinkAddress&);
    NetlinkAddress& operator=(const NetlinkAddress&);

    int m_socket;
};

#endif
