# Sourced by test and by tests/dialogs/dialogs.sh: runs programs for Windows in a Wine prefix of our own.

wine_prefix= # none is started

# start_wine PREFIX: from here on Wine programs run in the folder PREFIX, an absolute path, which is filled on first
# use. Their services are started here, detached: the first program would start them too, but they would keep its
# standard output open and keep its reader waiting. Display and locale are those of the environment.
start_wine() {
    wine_prefix=$1
    export WINEPREFIX=$1 WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml,winemenubuilder.exe=
    export PATH=/usr/lib/wine:$PATH # where Debian has wine64 and wineserver
    mkdir -p "$WINEPREFIX"
    setsid wineserver -p </dev/null >/dev/null 2>&1 || true # there may be one already
    setsid wine64 wineboot -i </dev/null >/dev/null 2>&1
}

# Ends the programs of that prefix only, and waits for them: a server that is still ending would disturb the next one.
stop_wine() {
    [ -n "$wine_prefix" ] || return 0
    WINEPREFIX=$wine_prefix wineserver -k 2>/dev/null || true # it may have ended by itself
    WINEPREFIX=$wine_prefix timeout 60 wineserver -w 2>/dev/null || true
}

# Wine uses code page 936 for zh_CN. The locale is made here, not on the machine.
make_chinese_locale() { # folder
    local name=zh_CN.UTF-8
    if [ ! -d "$1/$name" ]; then
        mkdir -p "$1"
        localedef -i zh_CN -f UTF-8 "$1/$name"
    fi
    export LOCPATH=$1
    export LC_ALL=$name
}
