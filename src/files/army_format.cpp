#include "files/army_format.h"

#include "base/code_page.h"
#include "base/failure.h"

#include <algorithm>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace warhost {

namespace {

/// What the elements of a reserved list are.
enum class Element { number, text };

class Writer {
public:
    template <std::integral Number> void number(char const*, Number value)
    {
        auto rest = static_cast<std::make_unsigned_t<Number>>(value);
        for (std::size_t i = 0; i < sizeof value; ++i) {
            bytes_ += static_cast<char>(rest & 0xFFU);
            rest = static_cast<decltype(rest)>(static_cast<std::uint64_t>(rest) >> 8U);
        }
    }

    void number(char const* field, float value) { number(field, std::bit_cast<std::uint32_t>(value)); }

    void text(std::string const& field, std::string const& utf8)
    {
        auto const text = windows_1252_of_utf8(utf8);
        if (text.outside) throw failure_of(Fault::outside_code_page, field + " contains " + *text.outside);
        raw_text(field, text.bytes);
    }

    void raw_text(std::string const& field, std::string const& text)
    {
        if (text.size() > std::numeric_limits<std::uint16_t>::max()) {
            throw failure_of(Fault::text_too_long,
                             field + " has " + std::to_string(text.size()) + " characters; 65535 are possible");
        }
        number("", static_cast<std::uint16_t>(text.size()));
        bytes_ += text;
    }

    template <std::size_t size> void reserved(char const*, Reserved<size> const& stretch)
    {
        bytes_.append(stretch.begin(), stretch.end());
    }

    void list(char const*, Element, ReservedList const& list) { bytes_ += list.encoded; }

    std::string take() { return std::move(bytes_); }

private:
    std::string bytes_;
};

class Reader {
public:
    explicit Reader(std::string_view bytes) : bytes_(bytes) {}

    template <std::integral Number> void number(std::string const& field, Number& value)
    {
        value = next_number<Number>(field);
    }

    void number(std::string const& field, float& value)
    {
        value = std::bit_cast<float>(next_number<std::uint32_t>(field));
    }

    void text(std::string const& field, std::string& utf8) { utf8 = utf8_of_windows_1252(next_text(field)); }

    void raw_text(std::string const& field, std::string& text) { text = next_text(field); }

    template <std::size_t size> void reserved(std::string const& field, Reserved<size>& stretch)
    {
        std::copy_n(take(field, size).begin(), size, stretch.begin());
    }

    void list(std::string const& field, Element element, ReservedList& list)
    {
        std::size_t const start = at_;
        auto const dimensions = next_number<std::uint16_t>(field);
        std::uint64_t count = dimensions == 0 ? 0 : 1;
        for (unsigned i = 0; i < dimensions; ++i) {
            auto const elements = next_number<std::uint32_t>(field);
            next_number<std::uint32_t>(field); // the lower bound
            // Limited against overflow: the file cannot hold so many, unless a later dimension is 0.
            count = std::min<std::uint64_t>(count, bytes_.size()) * elements;
        }
        std::size_t const smallest = element == Element::number ? 4 : 2;
        if (count > (bytes_.size() - at_) / smallest)
            fail(field + " claims more elements than there are bytes left for");
        if (element == Element::number) {
            take(field, static_cast<std::size_t>(count) * smallest);
        } else {
            for (std::uint64_t i = 0; i < count; ++i) next_text(field);
        }
        list.encoded = bytes_.substr(start, at_ - start);
    }

private:
    template <std::integral Number> Number next_number(std::string const& field)
    {
        std::uint64_t bits = 0;
        auto const taken = take(field, sizeof(Number));
        for (std::size_t i = 0; i < taken.size(); ++i) {
            bits |= std::uint64_t{static_cast<unsigned char>(taken[i])} << (8 * i);
        }
        return static_cast<Number>(bits);
    }

    std::string_view next_text(std::string const& field) { return take(field, next_number<std::uint16_t>(field)); }

    std::string_view take(std::string const& field, std::size_t size)
    {
        if (size > bytes_.size() - at_)
            fail(std::to_string(size) + (size == 1 ? " byte of " : " bytes of ") + field + " should follow");
        auto const taken = bytes_.substr(at_, size);
        at_ += size;
        return taken;
    }

    /// what: what is missing at the current offset.
    [[noreturn]] void fail(std::string const& what) const
    {
        throw failure_of(Fault::file_too_short, "it ends at byte " + std::to_string(bytes_.size()) + ", but " + what +
                                                    " at byte " + std::to_string(at_));
    }

    std::string_view bytes_;
    std::size_t at_ = 0;
};

/// The layout, in either direction: Record is Army when reading, Army const when writing.
template <class Stream, class Record> void walk(Stream& io, Record& army)
{
    io.text("the army's name", army.Name);
    for (std::size_t row = 0; row < army.UnitType.size(); ++row) {
        io.text("unit type #" + std::to_string(row + 1), army.UnitType[row]);
    }
    for (auto& count : army.UnitNum) io.number("the numbers of soldiers", count);
    io.reserved("the first reserved bytes", army.ReservedAfterUnits);
    io.number("the total of soldiers", army.TotalNo);
    for (auto& state : army.Opt) io.number("the options", state);
    for (auto& value : army.OptValue) io.number("the category results", value);
    for (auto& state : army.MiscCheck) io.number("the misc ticks", state);
    for (auto& value : army.MiscValue) io.number("the misc values", value);
    io.reserved("the reserved bytes after the misc values", army.ReservedAfterMisc);
    io.number("the troop ratio bonus", army.RatioBonus);
    io.number("the total modifier", army.TotalMod);
    io.reserved("the reserved bytes after the total modifier", army.ReservedAfterTotal);
    for (auto& list : army.ReservedNumberLists) io.list("a reserved list of numbers", Element::number, list);
    io.reserved("the reserved bytes between the lists", army.ReservedBetweenLists);
    for (auto& list : army.ReservedTextLists) io.list("a reserved list of texts", Element::text, list);
    io.number("the experience bonus", army.LevelBonus);
    io.reserved("the reserved bytes after the experience bonus", army.ReservedAfterLevelBonus);
    io.number("the troop level", army.Level);
    io.number("the other army's troop level", army.OtherLevel);
    io.reserved("the reserved bytes after the levels", army.ReservedAfterLevels);
    for (auto& text : army.ReservedTexts) io.raw_text("the reserved texts", text);
}

} // namespace

std::string encode_army(Army const& army)
{
    Writer writer;
    walk(writer, army);
    return writer.take();
}

Army decode_army(std::string_view bytes)
{
    Reader reader{bytes};
    Army army;
    walk(reader, army);
    return army;
}

} // namespace warhost
