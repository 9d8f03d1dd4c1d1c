// Text to numbers and numbers to text, as every field of the program reads and writes them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace warhost {

/// The user's regional separators, UTF-8. group is empty where digits are not grouped.
struct NumberFormat {
    std::string decimal = ".";
    std::string group = ",";
};

/// The leading number of a text: blanks, tabs and line feeds are removed first; then the longest prefix of sign,
/// digits, ".", digits, exponent (E or D), or &H / &O and digits of that base. 0 when there is none. The separator is
/// always ".". A number beyond double precision gives an infinity, one too small for it 0. Never fails.
double leading_number(std::string_view text);

/// The leading number limited to -32000..32000, then rounded with halves to even.
std::int16_t TextToInt(std::string_view text);

/// The leading number limited to -2000000000..2000000000, then rounded with halves to even.
std::int32_t TextToLong(std::string_view text);

/// The whole text in the regional format when it is such a number other than 0, else its leading number. Limited to
/// the finite single-precision numbers. Never fails.
float TextToSingle(std::string_view text, NumberFormat const& format);

/// text less the characters of `blanks` at its ends.
std::string_view without_outer(std::string_view blanks, std::string_view text);

/// "+0", "+5", "-2".
std::string SignedText(std::int64_t n);

/// Plain decimal digits, "-" in front of a negative number.
std::string plain_text(std::int64_t n);

/// Plain decimal digits in groups of three, with the regional separator between them. n is not negative.
std::string grouped_text(std::int64_t n, NumberFormat const& format);

/// number with its "." replaced by the regional decimal separator.
std::string with_decimal_separator(std::string number, NumberFormat const& format);

/// The fewest decimals that read back as value, with the regional decimal separator: "1", "2.5". An exponent appears
/// below 1E-5 and from 1E+15 on. A value that is not finite gives "0".
std::string general_text(float value, NumberFormat const& format);

/// A number of tenths with exactly one decimal: 167 gives "16.7".
std::string tenths_text(std::int64_t tenths, NumberFormat const& format);

/// A number of hundredths with one decimal, halves away from zero: 1665 gives "16.7".
std::string hundredths_as_tenths(std::int64_t hundredths, NumberFormat const& format);

/// value with one decimal, halves away from zero, taken at its decimal value to 12 decimals: 16.65 gives "16.7",
/// although the nearest double lies below it. |value| is at most 1E+6.
std::string one_decimal(double value, NumberFormat const& format);

} // namespace warhost
