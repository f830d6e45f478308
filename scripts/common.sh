# shellcheck shell=bash
# Sourced by the scripts: the root of the checkout, and how they speak.
root=$(CDPATH= cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# On standard error, so that what a job of kavo prints can be piped on.
say() { printf '== %s\n' "$*" >&2; }

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# build PRESET [TARGET...] : configures where that was not done yet, and builds the targets, or
# everything, into build/PRESET.
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
