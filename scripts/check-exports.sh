#!/usr/bin/env bash
# Checks the dynamic symbol table of the shared library: only ast_ functions
# and AST_UAP_ objects may be exported, and every function declared with
# KOVREL_API in the public headers must be there.
set -euo pipefail
lib=$1
incdir=$2
nm_out=$(nm -D --defined-only "$lib" | awk '{print $NF}' | sort -u)
bad=$(printf '%s\n' "$nm_out" | grep -v -E '^(ast_|AST_UAP_)' | grep -v -E '^(_init|_fini|_edata|_end|__bss_start)$' || true)
status=0
if [ -n "$bad" ]; then
  echo "symbols exported that are not part of the API:"
  printf '  %s\n' $bad
  status=1
fi
declared=$(cat "$incdir"/*.h | tr '\n' ' ' | grep -o -E 'KOVREL_API[^;]*;' |
  grep -o -E '\b(ast_[a-z0-9_]+|AST_UAP_[A-Z0-9_]+)\b[ ]*[;(]' | grep -o -E '^[A-Za-z0-9_]+' | sort -u)
missing=$(comm -23 <(printf '%s\n' "$declared") <(printf '%s\n' "$nm_out"))
if [ -n "$missing" ]; then
  echo "declared in the public headers but not exported:"
  printf '  %s\n' $missing
  status=1
fi
count=$(printf '%s\n' "$declared" | wc -l)
if [ $status -eq 0 ]; then echo "exports ok: $count declared names exported, nothing else"; fi
exit $status
