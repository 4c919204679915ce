# Sourced by the scripts in the project's root: installs Debian packages that are missing, and says
# which. Works as root or with sudo.

# cwidget_install PACKAGE...
cwidget_install() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    local root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Packages are missing, and neither root nor sudo is there to install them. As root:" >&2
            echo "  apt-get install ${missing[*]}" >&2
            return 1
        fi
        root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    "${root[@]}" apt-get update -qq </dev/null
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" </dev/null >/dev/null
}

# The packages that building the library needs, for the given generation of Qt.
cwidget_build_packages() {
    echo cmake ninja-build g++ pkg-config
    case $1 in
        5) echo qtbase5-dev ;;
        6) echo qt6-base-dev libgl-dev ;;
    esac
}

# The platform plugins, the fonts and what else a running program needs.
cwidget_run_packages() {
    echo fontconfig fonts-liberation fonts-dejavu-core
    case $1 in
        5) echo libqt5gui5 ;;
        6) echo libqt6gui6 qt6-qpa-plugins ;;
    esac
}

# What forms, translations and accessibility and their tests need besides: Designer with its plugins
# and tools, the accessibility bus, and a font with Chinese letters.
cwidget_designer_packages() {
    echo dbus-daemon dbus-bin at-spi2-core python3-pyatspi fonts-wqy-microhei
    case $1 in
        5) echo qttools5-dev qttools5-dev-tools ;;
        6) echo qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libqt6opengl6-dev ;;
    esac
}

# What building the Debian packages needs.
cwidget_package_packages() {
    cwidget_build_packages 5
    echo build-essential debhelper dpkg-dev doxygen fakeroot qttools5-dev qttools5-dev-tools
    echo fontconfig fonts-dejavu-core fonts-liberation
}
