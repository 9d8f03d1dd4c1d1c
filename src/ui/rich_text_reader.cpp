#include "ui/rich_text_reader.h"

#include "base/characters.h"
#include "base/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace warhost {

namespace {

/// The state that a closing brace restores. Small, as a document may consist of opening braces only.
struct GroupState {
    bool bold = false;
    bool skipped = false;
    bool begins = true; // nothing has been read of the group
};

class Reader {
public:
    /// document: UTF-8.
    explicit Reader(std::string_view document) : text_(document) {}

    std::vector<RichTextParagraph> read()
    {
        while (at_ < text_.size() && !ended_) step();
        return std::move(paragraphs_);
    }

private:
    void step()
    {
        switch (text_[at_]) {
        case '{':
            ++at_;
            groups_.push_back(state_);
            state_.begins = true;
            return;
        case '}':
            ++at_;
            close_group();
            return;
        case '\r':
        case '\n': ++at_; return;
        case '\\':
            ++at_;
            if (at_ < text_.size()) control();
            break;
        default: append(next_character());
        }
        state_.begins = false;
    }

    void close_group()
    {
        if (groups_.empty()) return;
        state_ = groups_.back();
        groups_.pop_back();
        ended_ = groups_.empty();
    }

    /// Reads on after a backslash.
    void control()
    {
        char const c = text_[at_];
        if (is_letter(c)) return control_word();
        std::string_view const symbol = next_character();
        if (c == '\\' || c == '{' || c == '}') append(symbol);
        else if (c == '\'') byte_in_hex();
        else if (c == '*') state_.skipped = true;
    }

    void control_word()
    {
        struct Row {
            std::string_view word;
            void (*act)(Reader&, bool is_zero);
        };
        static constexpr std::array rows{
            Row{"b", [](Reader& reader, bool is_zero) { reader.state_.bold = !is_zero; }},
            Row{"par", [](Reader& reader, bool) { reader.end_paragraph(); }},
            Row{"rtf", [](Reader&, bool) {}},
        };
        std::string_view const word = take_while(is_letter);
        if (at_ + 1 < text_.size() && text_[at_] == '-' && is_digit(text_[at_ + 1])) ++at_;
        std::string_view const number = take_while(is_digit);
        if (at_ < text_.size() && text_[at_] == ' ') ++at_;
        auto const* const row = std::ranges::find(rows, word, &Row::word);
        bool const is_zero = !number.empty() && number.find_first_not_of('0') == std::string_view::npos;
        if (row != rows.end()) row->act(*this, is_zero);
        else if (state_.begins) state_.skipped = true;
    }

    void byte_in_hex()
    {
        auto const digit = [&](std::size_t place) {
            return place < text_.size() ? hex_digit(text_[place]) : std::nullopt;
        };
        auto const high = digit(at_);
        auto const low = digit(at_ + 1);
        if (!high || !low) return;
        at_ += 2;
        char const byte = static_cast<char>(*high * 16 + *low);
        append(utf8_of_windows_1252({&byte, 1}));
    }

    std::string_view take_while(bool (*kind)(char))
    {
        std::size_t const start = at_;
        while (at_ < text_.size() && kind(text_[at_])) ++at_;
        return text_.substr(start, at_ - start);
    }

    /// All bytes of the character at the current position.
    std::string_view next_character()
    {
        std::size_t const start = at_++;
        take_while([](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; });
        return text_.substr(start, at_ - start);
    }

    void append(std::string_view character)
    {
        auto const first = static_cast<unsigned char>(character.front());
        if (state_.skipped || (first < 0x20 && first != '\t') || first == 0x7F) return;
        auto& paragraph = paragraphs_.back();
        if (paragraph.empty() || paragraph.back().bold != state_.bold) paragraph.push_back({{}, state_.bold});
        paragraph.back().text += character;
    }

    void end_paragraph()
    {
        if (!state_.skipped) paragraphs_.emplace_back();
    }

    std::string_view text_;
    std::size_t at_ = 0;
    bool ended_ = false;
    GroupState state_;
    std::vector<GroupState> groups_;
    std::vector<RichTextParagraph> paragraphs_{1};
};

} // namespace

std::vector<RichTextParagraph> read_rich_text(std::string_view document)
{
    if (is_utf8(document)) return Reader{document}.read();
    std::string const text = utf8_of_windows_1252(document);
    return Reader{text}.read();
}

} // namespace warhost
