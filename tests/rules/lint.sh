#!/usr/bin/env bash
# clang-tidy finds nothing in the sources that are built for Linux: the programs, and the tools that make what is
# in them.
set -euo pipefail
cd "$(dirname "$0")/../.."
git ls-files 'src/*.cpp' 'tools/*.cpp' | grep -v /windows/ |
  xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p build/linux
