#include "pictures/fine_path.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace quillon {

namespace {

// What a Bezier curve's handles take of the radius, in 1/65536, so that four of them look like a
// circle.
constexpr std::int64_t kHandle = 36195;

std::int64_t Root(std::int64_t square)
{
    std::int64_t root = 0;
    for (std::int64_t bit = std::int64_t{1} << 31; bit > 0; bit >>= 1)
        if ((root | bit) <= square / std::max<std::int64_t>(root | bit, 1))
            root |= bit;
    return root;
}

std::int64_t LengthOf(FinePoint from, FinePoint to)
{
    const std::int64_t across = to.x - from.x;
    const std::int64_t down = to.y - from.y;
    return Root(across * across + down * down);
}

// A quarter of an ellipse from `from`, whose handle points along `first`, to `from + first +
// second`.
void AddQuarter(FinePoints& points, FinePoint from, FinePoint first, FinePoint second)
{
    const std::int32_t size =
        std::max({std::abs(first.x), std::abs(first.y), std::abs(second.x), std::abs(second.y)});
    const std::int64_t steps = size < 16 * kFine ? 6 : size < 200 * kFine ? 14 : 30;
    const auto at = [&](std::int64_t start, std::int64_t one, std::int64_t two, std::int64_t step) {
        const std::int64_t rest = steps - step;
        const std::int64_t p1 = one * kHandle;
        const std::int64_t p2 = one * 65536 + two * (65536 - kHandle);
        const std::int64_t p3 = (one + two) * 65536;
        const std::int64_t sum =
            3 * rest * rest * step * p1 + 3 * rest * step * step * p2 + step * step * step * p3;
        return static_cast<std::int32_t>(start + sum / (steps * steps * steps) / 65536);
    };
    for (std::int64_t step = 0; step < steps; ++step)
        points.push_back(
            {at(from.x, first.x, second.x, step), at(from.y, first.y, second.y, step)});
}

struct Frame {
    std::int32_t left;
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;

    explicit Frame(const FineRect& rect)
        : left(std::min(rect.first.x, rect.last.x)), top(std::min(rect.first.y, rect.last.y)),
          right(std::max(rect.first.x, rect.last.x)), bottom(std::max(rect.first.y, rect.last.y))
    {
    }
};

std::int64_t Cross(FinePoint centre, FinePoint a, FinePoint b)
{
    return std::int64_t{a.x - centre.x} * (b.y - centre.y) -
           std::int64_t{a.y - centre.y} * (b.x - centre.x);
}

/// Where the direction of a point meets an ellipse: after which of its points, and where.
struct Intersection {
    std::size_t behind = 0;
    FinePoint point;
};

Intersection MeetingOf(const FinePoints& ellipse, FinePoint centre, FinePoint direction)
{
    for (std::size_t i = 0; i < ellipse.size(); ++i) {
        const FinePoint next = ellipse[(i + 1) % ellipse.size()];
        const std::int64_t here = Cross(centre, ellipse[i], direction);
        const std::int64_t there = Cross(centre, next, direction);
        if (here > 0 || there <= 0)
            continue;
        const auto between = [&](std::int64_t from, std::int64_t to) {
            // The two numbers may be too large to be multiplied by more.
            const std::int64_t part = -here * 1024 / (there - here);
            return static_cast<std::int32_t>(from + (to - from) * part / 1024);
        };
        return {i, {between(ellipse[i].x, next.x), between(ellipse[i].y, next.y)}};
    }
    return {0, ellipse[0]};
}

// Of 1024, every 15 degrees.
constexpr std::array<std::int32_t, 24> kSines = {0,    265,  512,   724,  887,  989,  1024, 989,
                                                 887,  724,  512,   265,  0,    -265, -512, -724,
                                                 -887, -989, -1024, -989, -887, -724, -512, -265};

void AddDot(FinePath& path, FinePoint centre, std::int32_t radius)
{
    const std::size_t step = radius < 3 * kFine ? 6 : radius < 12 * kFine ? 3 : 1;
    const auto part = [radius](std::size_t angle) {
        return static_cast<std::int32_t>(std::int64_t{kSines[angle % kSines.size()]} * radius /
                                         1024);
    };
    for (std::size_t i = 0; i < kSines.size(); i += step)
        path.points.push_back({centre.x + part(i + 6), centre.y + part(i)});
    path.Close();
}

void AddSegment(FinePath& path, FinePoint from, FinePoint to, std::int32_t radius)
{
    const std::int64_t length = LengthOf(from, to);
    if (length == 0)
        return;
    const auto across = static_cast<std::int32_t>(-std::int64_t{to.y - from.y} * radius / length);
    const auto down = static_cast<std::int32_t>(std::int64_t{to.x - from.x} * radius / length);
    path.points.insert(path.points.end(), {{from.x - across, from.y - down},
                                           {to.x - across, to.y - down},
                                           {to.x + across, to.y + down},
                                           {from.x + across, from.y + down}});
    path.Close();
}

} // namespace

FinePoints EllipseOf(const FineRect& rect)
{
    const Frame frame(rect);
    const std::int32_t across = (frame.right - frame.left) / 2;
    const std::int32_t down = (frame.bottom - frame.top) / 2;
    const FinePoint centre{frame.left + across, frame.top + down};
    FinePoints points;
    AddQuarter(points, {centre.x + across, centre.y}, {0, -down}, {-across, 0});
    AddQuarter(points, {centre.x, centre.y - down}, {-across, 0}, {0, down});
    AddQuarter(points, {centre.x - across, centre.y}, {0, down}, {across, 0});
    AddQuarter(points, {centre.x, centre.y + down}, {across, 0}, {0, -down});
    return points;
}

FinePoints ArcOf(const FineRect& rect, FinePoint from, FinePoint to)
{
    const FinePoints ellipse = EllipseOf(rect);
    const Frame frame(rect);
    const FinePoint centre{frame.left + (frame.right - frame.left) / 2,
                           frame.top + (frame.bottom - frame.top) / 2};
    const Intersection begin = MeetingOf(ellipse, centre, from);
    const Intersection end = MeetingOf(ellipse, centre, to);
    FinePoints points{begin.point};
    std::size_t count = (end.behind + ellipse.size() - begin.behind) % ellipse.size();
    // Begin and end lie on the same segment: the arc is a small piece of it, or the whole ellipse
    // but for that piece.
    if (count == 0 && Cross(centre, begin.point, end.point) >= 0)
        count = ellipse.size();
    for (std::size_t i = 1; i <= count; ++i)
        points.push_back(ellipse[(begin.behind + i) % ellipse.size()]);
    points.push_back(end.point);
    return points;
}

FinePoints RoundRectOf(const FineRect& rect, std::int32_t across, std::int32_t down)
{
    const Frame frame(rect);
    const std::int32_t x = std::min(std::abs(across) / 2, (frame.right - frame.left) / 2);
    const std::int32_t y = std::min(std::abs(down) / 2, (frame.bottom - frame.top) / 2);
    FinePoints points;
    const auto add = [&points](FinePoint from, FinePoint first, FinePoint second) {
        AddQuarter(points, from, first, second);
        points.push_back({from.x + first.x + second.x, from.y + first.y + second.y});
    };
    add({frame.right, frame.top + y}, {0, -y}, {-x, 0});
    add({frame.left + x, frame.top}, {-x, 0}, {0, y});
    add({frame.left, frame.bottom - y}, {0, y}, {x, 0});
    add({frame.right - x, frame.bottom}, {x, 0}, {0, -y});
    return points;
}

FinePath StrokeOf(const FinePoints& line, bool isClosed, std::int32_t width)
{
    FinePath path;
    const std::int32_t radius = std::max(width / 2, 1);
    for (std::size_t i = 0; i < line.size(); ++i) {
        AddDot(path, line[i], radius);
        if (i + 1 < line.size())
            AddSegment(path, line[i], line[i + 1], radius);
        else if (isClosed)
            AddSegment(path, line[i], line[0], radius);
    }
    return path;
}

std::vector<FinePoints> DashesOf(const FinePoints& line, const std::vector<std::int32_t>& lengths,
                                 std::size_t maxDashes)
{
    std::vector<FinePoints> dashes;
    std::size_t at = 0;
    std::int64_t left = lengths[0];
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        const std::int64_t length = LengthOf(line[i], line[i + 1]);
        for (std::int64_t done = 0; done < length;) {
            const std::int64_t next = std::min(done + left, length);
            const auto along = [&](std::int64_t place) {
                const auto between = [&](std::int64_t from, std::int64_t to) {
                    return static_cast<std::int32_t>(from + (to - from) * place / length);
                };
                return FinePoint{between(line[i].x, line[i + 1].x),
                                 between(line[i].y, line[i + 1].y)};
            };
            if (at % 2 == 0)
                dashes.push_back({along(done), along(next)});
            if (dashes.size() >= maxDashes)
                return dashes;
            left -= next - done;
            done = next;
            if (left == 0)
                left = lengths[++at % lengths.size()];
        }
    }
    return dashes;
}

} // namespace quillon
