#include "runtime/log/json_writer.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace quillon {
namespace {

using nlohmann::json;

TEST(JsonWriter, WritesObjectsArraysTextsNumbersAndFlags)
{
    JsonWriter writer;
    writer.OpenObject();
    writer.Add("text", "Åäö");
    writer.Add("number", -7);
    writer.OpenArray("list");
    writer.AddItem("a");
    writer.OpenObject();
    writer.AddFlag("yes", true);
    writer.AddFlag("no", false);
    writer.Close();
    writer.OpenArray();
    writer.Close();
    writer.Close();
    writer.OpenObject("empty");
    writer.Close();
    writer.Close();
    EXPECT_EQ(writer.Written(), "{\"text\":\"Åäö\",\"number\":-7,\"list\":[\"a\",{\"yes\":true,"
                                "\"no\":false},[]],\"empty\":{}}");
}

TEST(JsonWriter, WritesEveryTextSoThatItComesBack)
{
    Text all;
    for (char c = 1; c < 127; ++c)
        all += c;
    for (const Text& text :
         {Text("C:\\a \"b\""), all, Text("\0x", 2), Text("\xF0\x9F\x98\x80 é")}) {
        JsonWriter writer;
        writer.OpenArray();
        writer.AddItem(text);
        writer.Close();
        EXPECT_EQ(json::parse(writer.Written())[0].get<std::string>(), text);
    }
}

TEST(JsonWriter, WritesJsonAlsoOfBytesThatAreNoText)
{
    JsonWriter writer;
    writer.OpenArray();
    writer.AddItem("a\xFF\xC3");
    writer.Close();
    EXPECT_EQ(json::parse(writer.Written())[0].get<std::string>(), "a\uFFFD\uFFFD");
}

} // namespace
} // namespace quillon
