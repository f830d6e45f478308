# shellcheck shell=bash
# Sourced by the scripts: the root of the checkout, and how they speak.
root=$(CDPATH= cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# On standard error, so that what a job of kavo prints can be piped on.
say() { printf '== %s\n' "$*" >&2; }

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# build PRESET : configures where that was not done yet, and builds into build/PRESET.
build() {
    local preset=$1
    say "building (preset $preset)"
    (
        cd "$root"
        local component=${QTPROPERTYBROWSER_SOURCE_DIR:-}
        [ -f "build/$preset/build.ninja" ] \
            || cmake --preset "$preset" ${component:+"-DQTPROPERTYBROWSER_SOURCE_DIR=$component"} \
            || fail "configuring failed"
        cmake --build --preset "$preset" || fail "the build failed"
    ) >&2
}
