#!/usr/bin/env bash
# tests/traces/update_traces.sh [BUILD_FOLDER]
#
# Makes the references of all samples anew with the labelport-trace of a build folder
# (build/release when none is given), and lists what has changed. Look at every change
# before you commit it: a reference says what is right.
set -euo pipefail
traces=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
project=$(cd "$traces/../.." && pwd)
program=${1:-$project/build/release}/bin/labelport-trace

[ -x "$program" ] || { echo "There is no $program; build it first" >&2; exit 1; }
shopt -s nullglob

# A label that does not import (status 1) has a trace too; anything else is a fault.
trace() {
    local status=0
    env -i LC_ALL=C.UTF-8 "$program" "$1" || status=$?
    [ "$status" -le 1 ] || { echo "$1: status $status" >&2; return 1; }
}

failed=0
for reader in opendocument orvanta tavrel; do
    mkdir -p "$traces/$reader"
    rm -f "$traces/$reader"/*.jsonl
    for sample in "$project/samples/$reader"/*.{odg,odt,qmtx,cnv,roc}; do
        reference=$traces/$reader/$(basename "$sample").jsonl
        trace "$sample" >"$reference" || failed=1
    done
    rmdir --ignore-fail-on-non-empty "$traces/$reader"
done
git -C "$project" status --short -- tests/traces
exit $failed
