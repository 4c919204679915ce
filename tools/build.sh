# Sourced by the scripts in the project's root: configures and builds. On a terminal the build's own
# progress is seen; elsewhere all of it goes to build.log in the build folder, and only its end is
# printed when something fails.

# cwidget_quietly LOG COMMAND...
cwidget_quietly() {
    local log=$1
    shift
    if ! "$@" >>"$log" 2>&1; then
        tail -n 40 "$log" >&2
        echo "The build failed; all of its output is in $log" >&2
        return 1
    fi
}

# cwidget_build FOLDER TARGET OPTION...: the options configure; an empty target is everything.
cwidget_build() {
    local folder=$1 target=$2
    local log=$folder/build.log command=(cmake --build "$folder" ${target:+--target "$target"})
    shift 2
    mkdir -p "$folder"
    : >"$log"
    cwidget_quietly "$log" cmake -S . -B "$folder" -G Ninja "$@" || return 1
    if [ -t 1 ]; then
        echo "Building in $folder"
        "${command[@]}"
    else
        cwidget_quietly "$log" "${command[@]}"
    fi
}
