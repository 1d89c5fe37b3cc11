#!/usr/bin/env bash
# Brings the translations up to date with the sources: new texts come in untranslated, those that are gone leave. The
# English ones are filled in, where the source is English.
# Usage: scripts/update-translations.sh [DIR], by default translations.
set -euo pipefail
directory=$(realpath "${1:-$(dirname "$0")/../translations}")
cd "$(dirname "$0")/.."

lupdate=$(qtpaths6 --query QT_HOST_BINS)/lupdate
[ -x "$lupdate" ] || { echo "update-translations.sh: $lupdate is missing; scripts/setup.sh installs it" >&2; exit 1; }
said=$("$lupdate" -silent -no-obsolete -locations none -source-language en \
    -disable-heuristic sametext -disable-heuristic similartext -disable-heuristic number \
    src translations/QtTexts.h -ts "$directory"/Zandrove_*.ts 2>&1)
# A remark of lupdate is about a text that the running program would look for in another context.
[ -z "$said" ] || { printf 'update-translations.sh: %s\n' "$said" >&2; exit 1; }

python3 - "$directory/Zandrove_en.ts" <<'PYTHON'
import pathlib, re, sys
file = pathlib.Path(sys.argv[1])
filled = re.sub(r'(<source>([^<\u3000-\u9fff]*)</source>\s*)<translation type="unfinished"></translation>',
                r'\1<translation>\2</translation>', file.read_text())
file.write_text(filled)
PYTHON
