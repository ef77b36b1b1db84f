#include "runtime/registry/registry_changes.h"

namespace quillon {

void ApplyRegistryLine(const RegistryWork& work, const RegistryLine& line)
{
    using Kind = RegistryLine::Kind;
    switch (line.kind) {
    case Kind::Key:
        work.transaction.MakeKey(line.key);
        work.log.Line(Message::LogWritesRegistry, KeyText(line.key));
        break;
    case Kind::TextValue:
        work.transaction.WriteValue(line.key, line.valueName, TextData(line.text));
        break;
    case Kind::NumberValue:
        work.transaction.WriteValue(line.key, line.valueName, NumberData(line.number));
        break;
    case Kind::BytesValue:
        work.transaction.WriteValue(line.key, line.valueName, BytesData(line.bytes));
        break;
    case Kind::Delete:
        if (line.hasValue)
            work.transaction.RemoveValue(line.key, line.valueName);
        else
            work.transaction.RemoveKeyWithAllBelow(line.key);
        break;
    case Kind::Uninstall:
        if (line.hasValue)
            work.journal.Add(record::UninstallValue{line.key, line.valueName});
        else
            work.journal.Add(record::UninstallKey{line.key});
        break;
    case Kind::Unreadable:
        break;
    }
}

} // namespace quillon
