#!/usr/bin/env bash
# Renders Resources/ORVESSA_Logo.svg to the 40 x 40 bitmap the notification brush uses
# (Resources/ORVESSA_Logo_40x.png). Run it after changing the logo, and commit both files.
set -euo pipefail
cd "$(dirname "$0")/.."
if ! command -v rsvg-convert >/dev/null; then
    apt-get install -y --no-install-recommends librsvg2-bin >/dev/null
fi
rsvg-convert --width 40 --height 40 --keep-aspect-ratio Resources/ORVESSA_Logo.svg -o Resources/ORVESSA_Logo_40x.png
echo "Resources/ORVESSA_Logo_40x.png rendered from Resources/ORVESSA_Logo.svg"
