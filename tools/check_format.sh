#!/bin/sh
# Reports where the code is not laid out as .clang-format says, and then fails.
#   check_format.sh SOURCE_FOLDER
set -eu
cd "$1"
files=$(find src tools tests bench fuzz -name '*.h' -o -name '*.cpp')
exec clang-format --dry-run -Werror $files
