// The values that the game's files are made of: texts, whole numbers, flags and colour codes, one a line.
//
//   text      between double quotes; a double quote inside is written as an apostrophe, a line break as a
//             blank, because the format has no mark for them
//   number    decimal, without quotes
//   flag      #TRUE# or #FALSE#
//
// Files are Windows-1252 with CR LF line ends. A file with a character that Windows-1252 lacks is UTF-8
// behind a byte-order mark instead.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/color.h"

namespace zarpel {

class ValueWriter {
  public:
    void Put(const std::string& value);
    void Put(std::int16_t value);
    void Put(bool value);
    void Put(ColorCode value);

    // The whole file.
    std::string Bytes() const;

  private:
    void PutLine(std::string_view line);

    std::string text_;
};

// Takes values off a file in order. A value ends at a line end (CR LF, LF or CR) or at a comma. One that
// begins with a double quote runs to the next double quote, and what follows up to its end is ignored; any
// other loses the blanks around it. So files that people have edited by hand are read as well.
class ValueReader {
  public:
    explicit ValueReader(std::string_view bytes);

    // Each takes the next value. False, and `value` is unchanged: the file is over, the quote that begins the
    // value is never closed, or the value is of another kind. Numbers may have a sign, a decimal point and an
    // exponent; they are rounded to the nearest whole number, a half to the even one, and must then fit.
    bool Take(std::string& value);
    bool Take(std::int16_t& value);
    bool Take(bool& value);
    // Refuses what is no colour code, too.
    bool Take(ColorCode& value);

  private:
    std::optional<std::string> Next();
    std::optional<std::string> NextQuoted();
    void SkipSeparator();
    template <class Whole>
    std::optional<Whole> NextNumber();

    std::string text_;
    std::size_t at_ = 0;
};

}  // namespace zarpel
