#!/bin/sh
# Looks the sources over without running them, as ./test lint does: how they are laid out, the
# scripts, the warnings of clang beside those of gcc, and clang-tidy with the checks of .clang-tidy.
#   lint.sh SOURCE_FOLDER
set -eu
cd "$1"

tools/check_format.sh .
scripts=$(grep -rlE '^#!/bin/(ba)?sh' --exclude-dir=build --exclude-dir=.git .)
shellcheck $scripts
shellcheck --shell=bash packaging/completions/*
cmake --preset clang
cmake --build --preset clang --parallel "$(nproc)"
run-clang-tidy -quiet -p build/clang "^$PWD/(src|tools)/" 2>/dev/null
