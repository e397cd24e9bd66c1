#!/bin/sh
# Everything but the windows builds where there is no Qt, and nothing of it uses any.
#   build_without_qt.sh SOURCE_FOLDER BUILD_FOLDER
# The build folder stays, so that the next run has only changed files to build.
set -eu
source=$1
build=$2

cmake -S "$source" -B "$build" -G Ninja \
    -DQARN_WINDOWS=OFF -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON -DBUILD_TESTING=OFF
cmake --build "$build" --parallel 2

headers=$(ninja -C "$build" -t deps)
if echo "$headers" | grep '/qt6/'; then
    echo "These headers of Qt were read." >&2
    exit 1
fi
libraries=$(readelf --dynamic "$build/qarn-console")
if echo "$libraries" | grep 'Qt'; then
    echo "qarn-console loads these libraries of Qt." >&2
    exit 1
fi
