#!/usr/bin/env bash
# Takes what the editor's sources have to say into the files of all languages.
#
#   resources/translations/update.sh LUPDATE [FOLDER]     FOLDER: where the files lie, this one unless given
set -euo pipefail
folder=$(realpath "${2:-$(dirname "$0")}")
cd "$(dirname "$0")/../.."
# What the logic says marks its texts with Pattern.
logic=(src/common src/categories src/schedule src/definitions src/adapters/linux)
# Without the include folder the classes would go without their namespace, by which the program finds its words.
"$1" -silent -no-obsolete -locations none -I src -tr-function-alias QT_TRANSLATE_NOOP+=Pattern \
    src/editor_ui apps/definitions "${logic[@]}" -ts "$folder"/definitions_*.ts
