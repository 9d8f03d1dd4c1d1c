// The sizes and weights of the program's texts.
#pragma once

#include <QFont>
#include <QWidget>

namespace warhost {

/// pixels: at the base size, where the window's font has 11.
struct Type {
    double pixels;
    QFont::Weight weight;

    bool operator==(Type const&) const = default;
};

namespace type {

inline constexpr Type caption{11, QFont::DemiBold}; // of sections; results, the range, totals, losses
inline constexpr Type plain{11, QFont::Normal};     // the window's own font, whatever its weight
inline constexpr Type message{12, QFont::Normal};   // of message boxes
inline constexpr Type odds{12, QFont::DemiBold};
inline constexpr Type reading{13, QFont::Normal}; // descriptions, reports, the words beside the winner
inline constexpr Type name{13, QFont::DemiBold};  // of an army
inline constexpr Type total{13, QFont::Bold};     // of an army's modifiers
inline constexpr Type next_step{14, QFont::DemiBold};
inline constexpr Type result{20, QFont::Bold};
inline constexpr Type winner{22, QFont::Bold};
inline constexpr Type program_title{16, QFont::Bold};
inline constexpr Type licence{11, QFont::Bold}; // its name

} // namespace type

/// own: the window's font.
QFont in_type(QFont own, Type type);

void set_type(QWidget& widget, QFont const& own, Type type);

} // namespace warhost
