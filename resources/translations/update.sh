#!/usr/bin/env bash
# Takes what the editor's sources have to say into the files of all languages.
#
#   resources/translations/update.sh LUPDATE [FOLDER]     FOLDER: where the files lie, this one unless given
set -euo pipefail
folder=$(realpath "${2:-$(dirname "$0")}")
cd "$(dirname "$0")/../.."
# Without the include folder the classes would go without their namespace, by which the program finds its words.
"$1" -silent -no-obsolete -locations none -I src src/editor_ui apps/definitions -ts "$folder"/definitions_*.ts
