// Pens, brushes and fonts of a metafile, in the table that its records name them by.
#pragma once

#include "design/picture.h"
#include "helpers/text.h"

#include <functional>
#include <memory>
#include <queue>
#include <vector>

namespace quillon {

enum class PenStyle { Solid, Dash, Dot, DashDot, DashDotDot, None, InsideFrame };
enum class BrushStyle { Solid, None, Hatched };

struct MetafilePen {
    PenStyle style = PenStyle::Solid;
    int width = 0; // in the drawing's own units; 0 is as thin as can be
    Colour colour = 0;
};

struct MetafileBrush {
    BrushStyle style = BrushStyle::Solid;
    Colour colour = 0xFFFFFF;
    int hatch = 0;
    std::shared_ptr<const Picture> tile = {}; // in the place of a colour
};

struct MetafileFont {
    Text name = "Arial";
    int height = -12; // of the em square where negative, else of a line
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStrikeOut = false;
};

struct MetafileRegion {
    // One rectangle, in the drawing's own units.
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// At most one of these is set. An object of another kind, such as a palette, sets none of them and
/// only takes its place in the table.
struct MetafileObject {
    std::unique_ptr<const MetafilePen> pen;
    std::unique_ptr<const MetafileBrush> brush;
    std::unique_ptr<const MetafileFont> font;
    std::unique_ptr<const MetafileRegion> region;
    bool isDeleted = false;
};

/// A new object takes the first place that is free, which is how records know its number.
class MetafileObjects {
public:
    void Add(MetafileObject object)
    {
        if (!free_.empty()) {
            objects_[free_.top()] = std::move(object);
            free_.pop();
        } else if (objects_.size() < kMax) {
            objects_.push_back(std::move(object));
        }
    }

    /// Null where no object has that number.
    const MetafileObject* Find(std::size_t number) const
    {
        return number < objects_.size() ? &objects_[number] : nullptr;
    }

    void Remove(std::size_t number)
    {
        if (number >= objects_.size() || objects_[number].isDeleted)
            return;
        objects_[number] = {.isDeleted = true};
        free_.push(number);
    }

private:
    static constexpr std::size_t kMax = 65536;

    std::vector<MetafileObject> objects_;
    std::priority_queue<std::size_t, std::vector<std::size_t>, std::greater<>> free_;
};

} // namespace quillon
