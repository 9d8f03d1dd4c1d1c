// The kinds of fields: the text, state or size of a control, its handler, and its view.
//
// Setting a field shows it and runs its handler at once, nested, and to the end. `show` belongs to the screen and is
// empty when there is none; the handlers (Change, Click) belong to the form. Lengths are in twips.
#pragma once

#include "army/value_conversion.h"
#include "base/failure.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <utility>

namespace warhost {

using Notification = std::function<void()>;

/// The part common to all controls.
class Control {
public:
    explicit Control(std::string name) : name_(std::move(name)) {}

    /// The control's name; an element of an array is written "txtUnitNum(3)".
    std::string const& name() const { return name_; }

    Notification show;
    std::string tooltip;

protected:
    static void notify(Notification const& handler)
    {
        if (handler) handler();
    }

private:
    std::string name_;
};

/// A caption that the user cannot edit.
class TextLabel : public Control {
public:
    explicit TextLabel(std::string name, std::string caption = {})
        : Control(std::move(name)),
          caption_(std::move(caption))
    {
    }

    std::string const& caption() const { return caption_; }
    void set_caption(std::string caption)
    {
        caption_ = std::move(caption);
        notify(show);
    }

private:
    std::string caption_;
};

class TextBox : public Control {
public:
    explicit TextBox(std::string name, std::string text = {}) : Control(std::move(name)), text_(std::move(text)) {}

    std::string const& text() const { return text_; }

    /// Runs Change, also when the text is the same.
    void set_text(std::string text)
    {
        text_ = std::move(text);
        notify(show);
        notify(Change);
    }

    /// Shows the text without running Change.
    void set_text_silently(std::string text)
    {
        text_ = std::move(text);
        notify(show);
    }

    Notification Change;
    bool read_only = false; // for the user; the program sets the text all the same

private:
    std::string text_;
};

/// The place of a row of the misc panel.
struct RowPlace {
    float Left, Top, Width, Height;
};

/// An editable text with a list of proposals: a range of whole numbers. Only the two ends are kept, as a range may
/// have 64001 of them.
class ComboBox : public TextBox {
public:
    using ItemText = std::string (*)(std::int64_t);

    using TextBox::TextBox;

    /// Proposes first to last in ascending order, each written by `write`; nothing when first is greater than last.
    void set_list(int first, int last, ItemText write = SignedText)
    {
        first_ = first;
        size_ = std::max(last - first + 1, 0);
        item_text_ = write;
    }

    int list_size() const { return size_; }

    /// index: 0 to list_size() - 1.
    std::string item(int index) const { return item_text_(first_ + index); }

    /// The index of the field's own text in the list; -1 when it is not listed.
    int listed_index() const
    {
        std::int64_t const index = std::int64_t{TextToLong(text())} - first_;
        return index >= 0 && index < size_ && item(static_cast<int>(index)) == text() ? static_cast<int>(index) : -1;
    }

    /// The user chooses an item of the list: its text is set, which runs Change, then Click runs.
    void choose(int index)
    {
        set_text(item(index));
        notify(Click);
    }

    Notification Click;
    std::int16_t help_topic = 0; // 0: none
    bool visible = true;
    RowPlace place{};

private:
    int first_ = 0;
    int size_ = 0;
    ItemText item_text_ = SignedText;
};

class CheckBox : public Control {
public:
    explicit CheckBox(std::string name, std::string caption = {})
        : Control(std::move(name)),
          caption_(std::move(caption))
    {
    }

    /// 1 checked, 0 unchecked.
    int state() const { return state_; }

    /// Runs Click when the state changes, and only then.
    void set_state(int state)
    {
        if (state == state_) return;
        state_ = state;
        notify(show);
        notify(Click);
    }

    std::string const& caption() const { return caption_; }

    bool bold() const { return bold_; }
    void set_bold(bool bold)
    {
        bold_ = bold;
        notify(show);
    }

    Notification Click;
    std::int16_t help_topic = 0;
    bool visible = true;
    bool striped = false; // light grey behind the row rather than the button-face colour
    RowPlace place{};

private:
    std::string caption_;
    int state_ = 0;
    bool bold_ = false;
};

class OptionButton;

/// The option buttons of one frame: at most one is selected.
struct OptionGroup {
    OptionButton* selected = nullptr;
};

class OptionButton : public Control {
public:
    OptionButton(std::string name, std::string caption, std::string tag, OptionGroup& group)
        : Control(std::move(name)),
          caption_(std::move(caption)),
          tag_(std::move(tag)),
          group_(&group)
    {
    }

    std::string const& caption() const { return caption_; }
    std::string const& tag() const { return tag_; }
    bool selected() const { return group_->selected == this; }

    /// Becoming selected deselects the group's other button, then runs Click. Nothing else does.
    void set_selected(bool selected)
    {
        if (selected == this->selected()) return;
        OptionButton const* const before = std::exchange(group_->selected, selected ? this : nullptr);
        if (before != nullptr) notify(before->show);
        if (!selected) return;
        notify(show);
        notify(Click);
    }

    Notification Click;

private:
    std::string caption_;
    std::string tag_;
    OptionGroup* group_;
};

class Button : public Control {
public:
    explicit Button(std::string name, std::string caption) : Control(std::move(name)), caption_(std::move(caption)) {}

    std::string const& caption() const { return caption_; }
    /// Runs Click, then shows that this is done.
    void press() const
    {
        notify(Click);
        notify(show);
    }

    Notification Click;

private:
    std::string caption_;
};

/// A container with a place on the window, shown or hidden as a whole.
class Frame : public Control {
public:
    struct Box {
        int Left, Top, Width, Height;
        bool operator==(Box const&) const = default;
    };

    explicit Frame(std::string name, std::string caption = {}, Box box = {}, bool visible = true)
        : Control(std::move(name)),
          caption_(std::move(caption)),
          box_(box),
          visible_(visible)
    {
    }

    std::string const& caption() const { return caption_; }
    Box const& box() const { return box_; }
    bool visible() const { return visible_; }

    /// Sizes below zero become zero.
    void set_size(int Width, int Height)
    {
        box_.Width = std::max(Width, 0);
        box_.Height = std::max(Height, 0);
        notify(show);
    }

    void set_visible(bool visible)
    {
        visible_ = visible;
        notify(show);
    }

private:
    std::string caption_;
    Box box_;
    bool visible_;
};

/// The tab strip: a frame with the position of the selected tab.
class Tabs : public Frame {
public:
    using Frame::Frame;

    int position() const { return position_; }

    /// The user chooses a tab, 1 to 3; runs Click, also for the tab that is selected already.
    void choose(int position)
    {
        position_ = position;
        notify(show);
        notify(Click);
    }

    Notification Click;

private:
    int position_ = 1;
};

/// Shows a whole rich-text document.
class RichTextBox : public Control {
public:
    using Control::Control;

    std::string const& document() const { return document_; }
    void set_document(std::string document)
    {
        document_ = std::move(document);
        notify(show);
    }

private:
    std::string document_;
};

/// Controls that share one name and are told apart by an index. Indexes may leave gaps; elements never move.
template <class Field> class ControlArray {
public:
    explicit ControlArray(std::string name) : name_(std::move(name)) {}

    /// Elements first to last, each made with the same arguments.
    template <class... Arguments> ControlArray(std::string name, int first, int last, Arguments const&... arguments)
        : ControlArray(std::move(name))
    {
        for (int index = first; index <= last; ++index) create(index, arguments...);
    }

    /// One element per row, made with its index and one argument.
    ControlArray(std::string name, std::initializer_list<std::pair<int, char const*>> rows)
        : ControlArray(std::move(name))
    {
        for (auto const& [index, text] : rows) create(index, text);
    }

    template <class... Arguments> Field& create(int index, Arguments&&... arguments)
    {
        auto name = name_ + "(" + std::to_string(index) + ")";
        return elements_.try_emplace(index, std::move(name), std::forward<Arguments>(arguments)...).first->second;
    }

    /// Throws a Failure when there is no such element.
    Field& operator()(int index)
    {
        auto const found = elements_.find(index);
        if (found == elements_.end())
            throw failure_of(Fault::no_such_control, name_ + "(" + std::to_string(index) + ")");
        return found->second;
    }

    void remove(int index) { elements_.erase(index); }
    int highest() const { return elements_.rbegin()->first; }

    auto begin() { return elements_.begin(); }
    auto end() { return elements_.end(); }

private:
    std::string name_;
    std::map<int, Field> elements_;
};

} // namespace warhost
