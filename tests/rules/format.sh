#!/usr/bin/env bash
# Every source file is as clang-format writes it.
set -euo pipefail
cd "$(dirname "$0")/../.."
git ls-files 'src/*.h' 'src/*.cpp' 'tests/*.h' 'tests/*.cpp' 'bench/*.h' 'bench/*.cpp' 'tools/*.h' 'tools/*.cpp' |
  xargs clang-format --dry-run --Werror
