// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLineCase.h"

namespace folioforge::test {

/// What another program says of `documents`, one a line, that are not as docs/NAME.schema.json
/// demands.
inline QByteArray schemaFaultsOf(const QString &name, const QByteArray &documents) {
    const QString script = QStringLiteral(R"(
import json, jsonschema, sys
report, schema = [json.loads(open(path).read().replace("report.schema.json#", "#")) for path in sys.argv[1:]]
schema["$defs"] = report["$defs"]
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(schema)
lines = sys.stdin.buffer.read().decode().splitlines()
assert lines
for line in lines:
    for fault in validator.iter_errors(json.loads(line)):
        print(line, fault.message, [inner.message for inner in fault.context])
)");
    const ToolRun run =
        runTool(python(),
                {QStringLiteral("-c"), script, inSource(QStringLiteral("docs/report.schema.json")),
                 inSource(QStringLiteral("docs/%1.schema.json").arg(name))},
                documents);
    return run.exitCode == 0 ? run.out : "python: " + run.err;
}

/// The SHA-256 sum of a file, in the words of another program.
inline QString sha256(const QString &file) {
    return QString::fromLatin1(runTool(QStringLiteral("sha256sum"), {file}).out.left(64));
}

} // namespace folioforge::test
