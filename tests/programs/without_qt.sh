#!/bin/sh
# Everything but the windows builds where there is no Qt, uses none, and passes its rooms' tests under
# AddressSanitizer and UndefinedBehaviorSanitizer. Below the adapters nothing uses GLib either.
#   without_qt.sh SOURCE_FOLDER BUILD_FOLDER
# The build folder stays, so that the next run has only changed files to build.
set -eu
source=$1
build=$2
rooms='core scenarios rules shell window ai console'

programs=$(printf 'qarn_%s_tests ' $rooms)
(cd "$source" && cmake --preset asan -B "$build" \
    -DQARN_WINDOWS=OFF -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON)
cmake --build "$build" --parallel "$(nproc)" --target qarn-console $programs

headers=$(ninja -C "$build" -t deps)
if echo "$headers" | grep '/qt6/'; then
    echo "These headers of Qt were read." >&2
    exit 1
fi

# mayNotLoad LIBRARIES PROGRAM...
mayNotLoad() {
    libraries=$1
    shift
    if readelf --dynamic "$@" | grep -E "NEEDED.*($libraries)"; then
        echo "One of $* loads this library." >&2
        exit 1
    fi
}
mayNotLoad Qt "$build/qarn-console"
(cd "$build/tests" && mayNotLoad 'Qt|glib|gio' $programs)

exec ctest --test-dir "$build" --output-on-failure --no-tests=error --parallel "$(nproc)" \
    --tests-regex "^($(echo $rooms | tr ' ' '|'))\$"
