#include "ui/simulation_report.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>

namespace warhost {

namespace {

/// Two significant digits, rounded up so that the margin holds.
std::string margin_text(double margin, NumberFormat const& format)
{
    if (margin == 0) return "0";
    int const decimals = std::max(1 - static_cast<int>(std::floor(std::log10(margin))), 0);
    double const scale = std::pow(10, decimals);
    std::array<char, 32> buffer{};
    auto* const end = std::to_chars(buffer.begin(), buffer.end(), std::ceil(margin * scale) / scale,
                                    std::chars_format::fixed, decimals)
                          .ptr;
    return with_decimal_separator({buffer.begin(), end}, format);
}

} // namespace

std::string simulation_report(Tally const& tally, NumberFormat const& format)
{
    auto const share = [&](BattleWinner winner) {
        return one_decimal(tally.percent_won(winner), format) + "% of the time\r\n";
    };
    auto const side = [&](int Index, BattleWinner winner) {
        return "   Wins: " + share(winner) +
               "   Average casualties: " + one_decimal(tally.mean_casualties(Index), format) + "%\r\n";
    };
    return "Battle Results\r\n"
           "--------------\r\n"
           "Side A\r\n" +
           side(0, side_a_won) +
           "\r\n"
           "Side B\r\n" +
           side(1, side_b_won) +
           "\r\n"
           "Tied:\r\n"
           "   " +
           share(tie) + "\r\n";
}

std::string sample_text(Tally const& tally, NumberFormat const& format)
{
    double const casualties =
        std::min<double>(std::max(tally.casualty_margin(0), tally.casualty_margin(1)), highest_share);
    return battles_text(tally.battles(), format) + "; 95 % confidence: wins and ties within " +
           margin_text(share_margin(tally.battles()), format) + " points, average casualties within " +
           margin_text(casualties, format);
}

std::string long_run_text(Odds const& odds, NumberFormat const& format)
{
    auto const won = [&](BattleWinner winner) { return one_decimal(odds.percent_won(winner), format) + "%"; };
    auto const loses = [&](int Index) { return one_decimal(odds.mean_casualties(Index), format) + "%"; };
    return "In the long run: Side A wins " + won(side_a_won) + ", Side B wins " + won(side_b_won) + ", tied " +
           won(tie) + "; casualties " + loses(0) + " and " + loses(1);
}

std::string battles_text(std::int64_t battles, NumberFormat const& format)
{
    return grouped_text(battles, format) + (battles == 1 ? " battle" : " battles");
}

} // namespace warhost
