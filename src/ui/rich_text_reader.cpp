#include "ui/rich_text_reader.h"

#include "army/characters.h"
#include "files/code_page.h"

#include <algorithm>
#include <array>
#include <map>

namespace warhost {

namespace {

/// Longer names are cut, so that runs that repeat one cannot grow out of proportion to the document.
constexpr std::size_t longest_font_name = 64;
constexpr int largest_number = 1'000'000;
constexpr char32_t replacement = 0xFFFD;

enum class Destination : std::uint8_t { text, font_table, colour_table, skipped };

/// What a closing brace takes back. Small: a document may be nothing but opening braces.
struct GroupState {
    int font = 0;
    int half_points = 24;
    int colour = 0;
    int substitutes = 1; // characters that stand behind \u for readers that cannot show it
    bool bold = false;
    Destination destination = Destination::text;
};

struct ControlWord {
    std::string_view word;
    std::optional<int> number;

    int number_or(int fallback) const { return number.value_or(fallback); }
};

bool is_continuation(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; }

class Reader {
public:
    explicit Reader(std::string_view document) : text_(document) {}

    std::vector<RichTextParagraph> read()
    {
        while (at_ < text_.size() && !ended_) step();
        end_surrogate();
        return std::move(paragraphs_);
    }

private:
    bool next_is(bool (*kind)(char)) const { return at_ < text_.size() && kind(text_[at_]); }

    /// To the end of a character of several bytes.
    void skip_continuation()
    {
        while (next_is(is_continuation)) ++at_;
    }

    void step()
    {
        char const c = text_[at_];
        if (c == '{') {
            ++at_;
            open_group();
        } else if (c == '}') {
            ++at_;
            close_group();
        } else if (c == '\\') {
            ++at_;
            control();
        } else if (c == '\r' || c == '\n') {
            ++at_;
        } else {
            plain_character();
        }
    }

    void open_group()
    {
        groups_.push_back(state_);
        to_skip_ = 0;
    }

    void close_group()
    {
        to_skip_ = 0;
        if (groups_.empty()) return;
        state_ = groups_.back();
        groups_.pop_back();
        ended_ = groups_.empty();
    }

    /// One character as it stands, all its bytes.
    void plain_character()
    {
        std::size_t const start = at_++;
        skip_continuation();
        take_character(text_.substr(start, at_ - start));
    }

    /// Behind a backslash.
    void control()
    {
        if (at_ == text_.size()) return;
        char const c = text_[at_];
        if (is_letter(c)) {
            control_word();
            return;
        }
        switch (c) {
        case '\\':
        case '{':
        case '}': plain_character(); break;
        case '\'': byte_in_hex(); break;
        case '*':
            ++at_;
            state_.destination = Destination::skipped;
            break;
        case '~':
            ++at_;
            take_character(utf8_of(0xA0));
            break;
        case '_':
            ++at_;
            take_character(utf8_of(0x2011));
            break;
        case '\r':
        case '\n':
            ++at_;
            end_paragraph();
            break;
        default: // an unknown symbol, all its bytes
            ++at_;
            skip_continuation();
        }
    }

    void byte_in_hex()
    {
        ++at_;
        auto const digit = [&](std::size_t i) {
            return at_ + i < text_.size() ? hex_digit(text_[at_ + i]) : std::nullopt;
        };
        auto const high = digit(0);
        auto const low = digit(1);
        if (!high || !low) return;
        at_ += 2;
        char const byte = static_cast<char>(*high * 16 + *low);
        take_character(utf8_of_windows_1252({&byte, 1}));
    }

    ControlWord read_control()
    {
        std::size_t const start = at_;
        while (next_is(is_letter)) ++at_;
        ControlWord control{text_.substr(start, at_ - start), {}};

        bool const minus = at_ + 1 < text_.size() && text_[at_] == '-' && is_digit(text_[at_ + 1]);
        if (minus) ++at_;
        if (next_is(is_digit)) {
            int number = 0;
            for (; next_is(is_digit); ++at_) number = std::min(number * 10 + (text_[at_] - '0'), largest_number);
            control.number = minus ? -number : number;
        }
        if (at_ < text_.size() && text_[at_] == ' ') ++at_;
        return control;
    }

    void control_word()
    {
        struct Row {
            std::string_view word;
            void (*act)(Reader&, ControlWord const&);
        };
        static constexpr std::array rows{
            Row{"b", [](Reader& r, ControlWord const& c) { r.state_.bold = c.number_or(1) != 0; }},
            Row{"plain", [](Reader& r, ControlWord const&) { r.reset_look(); }},
            Row{"par", [](Reader& r, ControlWord const&) { r.end_paragraph(); }},
            Row{"line", [](Reader& r, ControlWord const&) { r.end_paragraph(); }},
            Row{"tab", [](Reader& r, ControlWord const&) { r.take_character("\t"); }},
            Row{"f", [](Reader& r, ControlWord const& c) { r.state_.font = c.number_or(0); }},
            Row{"fs", [](Reader& r, ControlWord const& c) { r.state_.half_points = std::max(1, c.number_or(24)); }},
            Row{"cf", [](Reader& r, ControlWord const& c) { r.state_.colour = c.number_or(0); }},
            Row{"deff", [](Reader& r, ControlWord const& c) { r.state_.font = r.default_font_ = c.number_or(0); }},
            Row{"u", [](Reader& r, ControlWord const& c) { r.unicode(c.number_or(0)); }},
            Row{"uc", [](Reader& r, ControlWord const& c) { r.state_.substitutes = std::max(0, c.number_or(1)); }},
            Row{"bin", [](Reader& r, ControlWord const& c) { r.skip_bytes(c.number_or(0)); }},
            Row{"red", [](Reader& r, ControlWord const& c) { r.colour_part(&RichTextColour::red, c); }},
            Row{"green", [](Reader& r, ControlWord const& c) { r.colour_part(&RichTextColour::green, c); }},
            Row{"blue", [](Reader& r, ControlWord const& c) { r.colour_part(&RichTextColour::blue, c); }},
            Row{"fonttbl", [](Reader& r, ControlWord const&) { r.enter(Destination::font_table); }},
            Row{"colortbl", [](Reader& r, ControlWord const&) { r.enter(Destination::colour_table); }},
            Row{"stylesheet", [](Reader& r, ControlWord const&) { r.enter(Destination::skipped); }},
            Row{"info", [](Reader& r, ControlWord const&) { r.enter(Destination::skipped); }},
            Row{"pict", [](Reader& r, ControlWord const&) { r.enter(Destination::skipped); }},
        };

        ControlWord const control = read_control();
        auto const* const row =
            std::find_if(rows.begin(), rows.end(), [&](Row const& each) { return each.word == control.word; });
        if (row != rows.end()) row->act(*this, control);
    }

    void enter(Destination destination)
    {
        if (state_.destination != Destination::skipped) state_.destination = destination;
    }

    void reset_look()
    {
        GroupState const fresh;
        state_.bold = fresh.bold;
        state_.half_points = fresh.half_points;
        state_.colour = fresh.colour;
        state_.font = default_font_;
    }

    void skip_bytes(int count)
    {
        at_ += std::min(static_cast<std::size_t>(std::max(0, count)), text_.size() - at_);
        skip_continuation();
    }

    /// A 16-bit unit, often written as a negative number; characters beyond them come as two.
    void unicode(int number)
    {
        to_skip_ = 0;
        auto const unit = static_cast<char32_t>(static_cast<unsigned>(number) & 0xFFFFU);
        bool const high = unit >= 0xD800 && unit < 0xDC00;
        bool const low = unit >= 0xDC00 && unit < 0xE000;
        if (low) {
            char32_t const first = surrogate_;
            surrogate_ = 0;
            take_character(utf8_of(first != 0 ? 0x10000 + ((first - 0xD800) << 10) + (unit - 0xDC00) : replacement));
        } else if (high) {
            end_surrogate();
            surrogate_ = unit;
        } else {
            take_character(utf8_of(unit));
        }
        to_skip_ = state_.substitutes;
    }

    /// The first half of a character whose second half did not come.
    void end_surrogate()
    {
        if (surrogate_ == 0) return;
        surrogate_ = 0;
        append(utf8_of(replacement));
    }

    /// One character of the current destination, unless it substitutes one that is shown already.
    void take_character(std::string_view character)
    {
        if (to_skip_ > 0) {
            --to_skip_;
            return;
        }
        end_surrogate();
        append(character);
    }

    void append(std::string_view character)
    {
        switch (state_.destination) {
        case Destination::text: append_text(character); break;
        case Destination::font_table: append_font_name(character); break;
        case Destination::colour_table:
            if (character == ";") {
                colours_.push_back(colour_);
                colour_.reset();
            }
            break;
        case Destination::skipped: break;
        }
    }

    void append_text(std::string_view character)
    {
        auto const first = static_cast<unsigned char>(character.front());
        if ((first < 0x20 && first != '\t') || first == 0x7F) return;
        auto& paragraph = paragraphs_.back();
        bool const same_look = !paragraph.empty() && state_.bold == look_.bold && state_.font == look_.font &&
                               state_.half_points == look_.half_points && state_.colour == look_.colour;
        if (!same_look) paragraph.push_back(run_of_state());
        look_ = state_;
        paragraph.back().text += character;
    }

    RichTextRun run_of_state() const
    {
        RichTextRun run;
        run.bold = state_.bold;
        run.points = state_.half_points / 2.0;
        if (auto const font = fonts_.find(state_.font); font != fonts_.end()) run.font = font->second;
        bool const listed = state_.colour >= 0 && static_cast<std::size_t>(state_.colour) < colours_.size();
        if (listed) run.colour = colours_[static_cast<std::size_t>(state_.colour)];
        return run;
    }

    void append_font_name(std::string_view character)
    {
        if (state_.font < 0) return;
        if (character == ";") {
            state_.font = -1; // a name that follows without a number belongs to no font
            return;
        }
        auto& name = fonts_[state_.font];
        if (name.size() + character.size() <= longest_font_name) name += character;
    }

    void colour_part(std::uint8_t RichTextColour::*part, ControlWord const& control)
    {
        if (state_.destination != Destination::colour_table) return;
        if (!colour_) colour_.emplace();
        (*colour_).*part = static_cast<std::uint8_t>(std::clamp(control.number_or(0), 0, 255));
    }

    void end_paragraph()
    {
        if (state_.destination != Destination::text) return;
        to_skip_ = 0;
        end_surrogate();
        paragraphs_.emplace_back();
    }

    std::string_view text_; // UTF-8
    std::size_t at_ = 0;
    bool ended_ = false;
    GroupState state_;
    std::vector<GroupState> groups_;
    GroupState look_; // of the last run
    int default_font_ = 0;
    int to_skip_ = 0;
    char32_t surrogate_ = 0;
    std::map<int, std::string> fonts_;
    std::vector<std::optional<RichTextColour>> colours_;
    std::optional<RichTextColour> colour_; // of the entry being read
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
