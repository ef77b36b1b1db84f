#include "cli/box_json.h"

#include <nlohmann/json.hpp>

namespace quillon::cli {

Json BoxesJson(const ConsoleAsk& ask)
{
    Json boxes = Json::array();
    for (const ConsoleAsk::Box& box : ask.boxes) {
        Json object = {{"title", box.title}, {"text", box.text}};
        if (box.answer)
            object["answer"] = *box.answer;
        boxes.push_back(std::move(object));
    }
    return boxes;
}

} // namespace quillon::cli
