#!/usr/bin/env bash
# Rules of the source tree that no compiler checks. Prints every breach.
cd "$(dirname "$0")/.." || exit 1
breaches=0

shopt -s lastpipe  # the count below is that of this shell, though lines come through a pipe
# breach TITLE: reads offending lines; any line is a breach.
breach() {
    local lines
    lines=$(cat)
    [ -z "$lines" ] && return
    printf '%s:\n%s\n' "$1" "$lines"
    breaches=$((breaches + 1))
}

sources() { find src tests benchmarks -name '*.cpp' -o -name '*.h'; }
core() { sources | grep '^src/' | grep -vE '/platform/qt/|/program/|/frm_'; }

core | xargs grep -nE '#include *[<"]Q|#include *"platform/qt/|#include *"[a-z]+/frm_' |
    breach "The core and the solvers know no Qt and no screen"
find src/platform -name '*.cpp' -o -name '*.h' |
    xargs grep -nE '#include *"(store|layered|slab|grid|plots|text|solvers|program)/' |
    breach "The platform layer knows nothing of pavements"
find src/solvers -name '*.cpp' -o -name '*.h' | xargs grep -nE '#include *"(grid|text|program)/' |
    breach "Solvers share only decks and plot files with the program"
sources | grep '^src/' | grep -v '^src/platform/' |
    xargs grep -nE 'QMessageBox|QInputDialog|QFileDialog|QPrint|QProcess|[.>]exec\(|processEvents' |
    breach "Blocking and outside calls belong to src/platform"
sources | xargs clang-format --dry-run -Werror 2>&1 | grep -E 'error:' | head -n 10 |
    breach "Layout is clang-format's"
find src tests docs scripts examples README.md -type f |
    xargs grep -nIiE '\bspec(ification)?\.md\b|\bthe spec\b|\bParts? [1-6]\.[0-9]\b' | grep -v '^tests/guards.sh' |
    breach "Only issues name the documents behind them"

[ "$breaches" -eq 0 ] && echo "no breach"
exit "$((breaches > 0))"
