#!/usr/bin/env bash
# check-braces.sh FILE...: fails for each C++ file that has braces around a body of one statement. clang-format finds
# them with RemoveBracesLLVM, which is not left on in .clang-format, for it breaks the layout of some lambdas; so what
# is compared is the number of braces with the option and without.
set -euo pipefail
cd "$(dirname "$0")/.."

style=$(mktemp)
trap 'rm -f "$style"' EXIT
{ cat .clang-format; echo "RemoveBracesLLVM: true"; } >"$style"

without() { clang-format --style=file:"$style" "$@"; }
count() { tr -cd '{' | wc -c; }

[ "$(cat "$@" | count)" != "$(without "$@" | count)" ] || exit 0
for file in "$@"; do
    [ "$(count <"$file")" = "$(without "$file" | count)" ] ||
        echo "$file: braces around a body of one statement" >&2
done
exit 1
