// picture_test FRESH COMMITTED...: whether the pictures in a folder still have the structure of the committed ones.
// Every edge of a box or a letter must be where it was, give or take two pixels.
#include <QFileInfo>
#include <QImage>

#include <algorithm>
#include <iostream>
#include <vector>

namespace {

constexpr int scale = 2; // dots to a pixel
constexpr int tolerance = 2 * scale;
constexpr int tile = 16 * scale;
constexpr int steep = 24; // difference of two neighbouring greys

/// Edges, and how many there are above and to the left of every dot.
struct Edges {
    int width, height;
    std::vector<int> sums;

    explicit Edges(QImage const& picture)
        : width(picture.width()),
          height(picture.height()),
          sums(static_cast<std::size_t>((width + 1) * (height + 1)))
    {
        auto const grey = [&](int x, int y) {
            return qGray(picture.pixel(std::min(x, width - 1), std::min(y, height - 1)));
        };
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                int const here = grey(x, y);
                bool const edge = std::abs(here - grey(x + 1, y)) > steep || std::abs(here - grey(x, y + 1)) > steep;
                at(x + 1, y + 1) = at(x, y + 1) + at(x + 1, y) - at(x, y) + (edge ? 1 : 0);
            }
    }

    int& at(int x, int y) { return sums[static_cast<std::size_t>(y * (width + 1) + x)]; }

    bool any(int left, int top, int right, int bottom)
    {
        left = std::clamp(left, 0, width), right = std::clamp(right, 0, width);
        top = std::clamp(top, 0, height), bottom = std::clamp(bottom, 0, height);
        return at(right, bottom) - at(left, bottom) - at(right, top) + at(left, top) > 0;
    }
};

/// Tells of every tile that as many edges of one have left as a line across it.
int missing(Edges& from, Edges& in, std::string const& name)
{
    int faults = 0;
    for (int top = 0; top < from.height; top += tile)
        for (int left = 0; left < from.width; left += tile) {
            int lost = 0;
            for (int y = top; y < std::min(top + tile, from.height); ++y)
                for (int x = left; x < std::min(left + tile, from.width); ++x)
                    if (from.any(x, y, x + 1, y + 1) &&
                        !in.any(x - tolerance, y - tolerance, x + tolerance + 1, y + tolerance + 1))
                        ++lost;
            if (lost < tile) continue;
            ++faults;
            std::cerr << name << ": what was at " << left / scale << ',' << top / scale << " is not there\n";
        }
    return faults;
}

} // namespace

int main(int argc, char* argv[])
{
    int faults = argc < 3 ? 1 : 0;
    for (int k = 2; k < argc; ++k) {
        std::string const name = QFileInfo{argv[k]}.fileName().toStdString();
        QImage const committed{argv[k]};
        QImage const fresh{QString{argv[1]} + '/' + QString::fromStdString(name)};
        QSize const grown = fresh.size() - committed.size();
        if (committed.isNull() || std::max(std::abs(grown.width()), std::abs(grown.height())) > tolerance) {
            ++faults;
            std::cerr << name << " has another size\n";
            continue;
        }
        Edges before{committed};
        Edges now{fresh};
        faults += missing(before, now, name) + missing(now, before, name + " as committed");
    }
    return faults == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
