#!/usr/bin/env bash
# Programs that have the clipboard of a real X display: one that hangs, one that answers, none.
#
# Usage: hanging-clipboard.sh TEST-PROGRAM
set -euo pipefail
program=$1

. "$(dirname "$0")/display.sh"

"$program"
