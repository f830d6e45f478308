# shellcheck shell=bash
# Sourced by the other scripts.
root=$(CDPATH= cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Prints to standard error, so that the output of kavo's jobs can be piped.
say() { printf '== %s\n' "$*" >&2; }

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# build PRESET [TARGET...] : configures build/PRESET if necessary, and builds the targets in it; without
# targets it builds everything.
build() {
    local preset=$1 folder
    shift
    folder="$root/build/$preset"
    say "building ${*:-everything} into build/$preset; the first time takes minutes"
    (
        cd "$root"
        local component=${QTPROPERTYBROWSER_SOURCE_DIR:-}
        [ -f "$folder/build.ninja" ] \
            || cmake --preset "$preset" ${component:+"-DQTPROPERTYBROWSER_SOURCE_DIR=$component"} \
            || fail "configuring failed"
        NINJA_STATUS="[%f/%t, %es] " cmake --build --preset "$preset" ${1:+--target "$@"} \
            || fail "the build failed"
    ) >&2
}
