#!/usr/bin/env bash
# Makes the OpenDocument samples anew with LibreOffice.
#
# Needed only by who changes the samples; the files themselves stand in the repository.
# Debian packages: libreoffice-draw libreoffice-writer python3-uno fonts-liberation
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'kill "$office" 2>/dev/null || true; wait "$office" 2>/dev/null || true; rm -rf "$work"' EXIT

soffice --headless --norestore --nologo "-env:UserInstallation=file://$work/profile" \
    "--accept=pipe,name=labelport_samples;urp;" &
office=$!
# The interpreter that Debian's python3-uno belongs to.
/usr/bin/python3 "$here/make_opendocument_samples.py" labelport_samples "$here"
