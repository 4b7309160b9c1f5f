#include "storage/values.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/codepage.h"

namespace zarpel {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kTrue = "#TRUE#";
constexpr std::string_view kFalse = "#FALSE#";
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kSeparators = ",\r\n";
constexpr std::string_view kBlanks = " \t";

// What a text becomes between double quotes.
std::string Quotable(std::string text) {
    for (std::size_t at = 0; (at = text.find(kLineEnd, at)) != std::string::npos;) text.erase(at, 1);
    for (char& c : text) {
        if (c == '"') c = '\'';
        if (c == '\r' || c == '\n') c = ' ';
    }
    return text;
}

std::optional<double> Number(std::string_view text) {
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end) return std::nullopt;
    return number;
}

}  // namespace

void ValueWriter::PutLine(std::string_view line) { text_.append(line).append(kLineEnd); }

void ValueWriter::Put(const std::string& value) { PutLine('"' + Quotable(value) + '"'); }

void ValueWriter::Put(std::int16_t value) { PutLine(std::to_string(value)); }

void ValueWriter::Put(bool value) { PutLine(value ? kTrue : kFalse); }

void ValueWriter::Put(ColorCode value) { PutLine(std::to_string(value)); }

std::string ValueWriter::Bytes() const {
    return Windows1252FromUtf8(text_).value_or(std::string(kUtf8Mark) + text_);
}

ValueReader::ValueReader(std::string_view bytes)
    : text_(bytes.starts_with(kUtf8Mark) ? std::string(bytes.substr(kUtf8Mark.size()))
                                         : Utf8FromWindows1252(bytes)) {}

bool ValueReader::Take(std::string& value) {
    const auto next = Next();
    if (next) value = *next;
    return next.has_value();
}

bool ValueReader::Take(std::int16_t& value) {
    const auto next = NextNumber<std::int16_t>();
    value = next.value_or(value);
    return next.has_value();
}

bool ValueReader::Take(bool& value) {
    const auto next = Next();
    if (next != kTrue && next != kFalse) return false;
    value = next == kTrue;
    return true;
}

bool ValueReader::Take(ColorCode& value) {
    const auto next = NextNumber<ColorCode>();
    if (!next || !IsColorCode(*next)) return false;
    value = *next;
    return true;
}

template <class Whole>
std::optional<Whole> ValueReader::NextNumber() {
    const auto next = Next();
    const auto number = next ? Number(*next) : std::nullopt;
    if (!number) return std::nullopt;
    const double whole = std::nearbyint(*number);
    using Limits = std::numeric_limits<Whole>;
    const bool fits = whole >= Limits::min() && whole <= Limits::max();  // false for "nan", too
    return fits ? std::optional(static_cast<Whole>(whole)) : std::nullopt;
}

std::optional<std::string> ValueReader::Next() {
    at_ = std::min(text_.find_first_not_of(kBlanks, at_), text_.size());
    if (at_ == text_.size()) return std::nullopt;
    if (text_[at_] == '"') return NextQuoted();
    const std::size_t end = std::min(text_.find_first_of(kSeparators, at_), text_.size());
    std::string value = text_.substr(at_, end - at_);
    value.erase(value.find_last_not_of(kBlanks) + 1);
    at_ = end;
    SkipSeparator();
    return value;
}

std::optional<std::string> ValueReader::NextQuoted() {
    const std::size_t start = at_ + 1;
    const std::size_t quote = text_.find('"', start);
    if (quote == std::string::npos) return std::nullopt;
    at_ = std::min(text_.find_first_of(kSeparators, quote), text_.size());
    SkipSeparator();
    return text_.substr(start, quote - start);
}

void ValueReader::SkipSeparator() {
    if (at_ == text_.size()) return;
    at_ += text_.compare(at_, kLineEnd.size(), kLineEnd) == 0 ? kLineEnd.size() : 1;
}

}  // namespace zarpel
