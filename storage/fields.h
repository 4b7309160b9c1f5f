// A file's layout, stated once: the list of its fields in file order. A field is a place of the game that
// holds one value; its kind in the file follows from its type. Saving and loading both go through the list.
#pragma once

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include "platform/desktop.h"
#include "platform/property.h"
#include "storage/values.h"

namespace zarpel {

struct Field {
    std::function<void(ValueWriter&)> Save;
    // False: the file has no such value here, nothing changed, and the file counts as damaged. So a field
    // that older files lack gives true then.
    std::function<bool(ValueReader&)> Load;
};
using Fields = std::vector<Field>;

// A field from the two functions that get and set its value.
template <class Get, class Set>
Field FieldFrom(Get get, Set set) {
    using Value = std::decay_t<std::invoke_result_t<Get>>;
    return {[get](ValueWriter& file) { file.Put(get()); },
            [set](ValueReader& file) {
                Value value{};
                if (!file.Take(value)) return false;
                set(value);
                return true;
            }};
}

// A property of a control.
template <class Value>
Field PropertyField(Property<Value>& property) {
    return FieldFrom([&property] { return property.get(); },
                     [&property](const Value& value) { property = value; });
}

// A field of a record, from its getter and setter, and the index that both take first, if they do.
template <class Record, class Get, class Set, class... Index>
Field RecordField(Record& record, Get get, Set set, Index... index) {
    return FieldFrom(
        [&record, get, index...] { return std::invoke(get, record, index...); },
        [&record, set, index...](const auto& value) { std::invoke(set, record, index..., value); });
}

// Makes the fields' values the whole content of the file. When that fails the player is told, and the file is
// as it was.
void SaveFile(Desktop& desktop, const std::string& path, const Fields& fields);

// Gives each value to its place as soon as it is read. False: the file cannot be read, or not every field has
// its value there; those before the first that has none have been given out. What follows the last is
// ignored.
bool LoadFile(Desktop& desktop, const std::string& path, const Fields& fields);

}  // namespace zarpel
