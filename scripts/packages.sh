# Sourced by run and test: installs Debian packages, or lists those that are missing.

need_packages() {
    local missing=() package
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null)" = "ii " ] || missing+=("$package")
    done
    [ "${#missing[@]}" -eq 0 ] && return
    if ! command -v apt-get >/dev/null || [ "$(id -u)" -ne 0 ]; then
        echo "Missing (names of Debian packages): ${missing[*]}" >&2
        echo "Install them, or run this as root on Debian 12." >&2
        exit 1
    fi
    echo "Installing ${missing[*]}" >&2
    local log
    log=$(mktemp)
    if ! { apt-get update && DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"; } \
        </dev/null >"$log" 2>&1; then
        cat "$log" >&2
        echo "These packages could not be installed: ${missing[*]}" >&2
        exit 1
    fi
    rm -f "$log"
}

# quietly LOG COMMAND...: shows what the command printed only if it fails.
quietly() {
    local log=$1
    shift
    mkdir -p "$(dirname "$log")"
    if ! "$@" </dev/null >"$log" 2>&1; then
        cat "$log" >&2
        return 1
    fi
}

build_packages=(g++ cmake ninja-build libcli11-dev libfmt-dev nlohmann-json3-dev)
windows_packages=(g++-mingw-w64-x86-64-posix wine64 googletest)
desktop_packages=(xvfb xdotool imagemagick openbox fonts-wqy-microhei) # to show dialogs on
