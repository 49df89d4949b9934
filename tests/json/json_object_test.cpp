// SPDX-License-Identifier: MIT
#include "json/json_object.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(JsonObject, BuildsRequestsInOrder) {
  CJsonObject object;
  EXPECT_TRUE(object.addText("isScale", "false"));
  EXPECT_TRUE(object.addInt("offsetX", 0));
  EXPECT_TRUE(object.addInt("low", -2147483647 - 1));
  EXPECT_TRUE(object.addText("a\"\n", "\x01\\"));
  EXPECT_EQ(object.toText(),
            R"({"isScale":"false","offsetX":0,"low":-2147483648,"a\"\n":"\u0001\\"})");
  EXPECT_EQ(object.valueText("low"), "-2147483648");
  EXPECT_EQ(object.errorText(), "");
}

TEST(JsonObject, RefusesToAddTwiceOrToAnArray) {
  CJsonObject object;
  EXPECT_TRUE(object.addInt("width", 1));
  EXPECT_FALSE(object.addText("width", "2"));
  EXPECT_EQ(object.errorText(), "key exists!");
  EXPECT_TRUE(object.addInt("Width", 3));
  EXPECT_EQ(object.toText(), R"({"width":1,"Width":3})");
  EXPECT_EQ(object.errorText(), "key exists!");

  for (const char* text : {"[1,2]", "7", "null"}) {
    CJsonObject other(text);
    EXPECT_FALSE(other.addInt("a", 1)) << text;
    EXPECT_EQ(other.errorText(), "not a json object! json array?") << text;
    EXPECT_EQ(other.toText(), text);
  }
}

TEST(JsonObject, TellsWhereParsingFailed) {
  CJsonObject object("{\"a\":1}");
  EXPECT_EQ(object.errorText(), "");
  for (const std::string& text : {std::string("tru, 1}"), std::string(), std::string(1000, '?')}) {
    EXPECT_FALSE(object.parseText(" " + text));
    EXPECT_EQ(object.errorText(), "prase json string error at " + text);
    EXPECT_EQ(object.toText(), "");
  }
  EXPECT_TRUE(object.parseText("[]"));
  EXPECT_EQ(object.errorText(), "prase json string error at " + std::string(1000, '?'));
}

TEST(JsonObject, GivesValuesAsText) {
  const CJsonObject object(
      R"({"s":"1920x1080","z":0,"n":-1,"i":2147483647,"u":4294967295,"l":4294967296,)"
      R"("m":18446744073709551615,"x":-9223372036854775808,"d":1.5,"zero":0.0,"big":1e9,)"
      R"("over":1.5e9,"t":true,"f":false,"null":null,"a":[1],"o":{},"s":"second","S":"case"})");
  // clang-format off
  const struct { const char* key; const char* text; } cases[] = {
      {"s", "1920x1080"}, {"z", "0"}, {"n", "-1"}, {"i", "2147483647"},
      {"u", "4294967295"}, {"l", "4294967296"}, {"m", "18446744073709551615"},
      {"x", "-9223372036854775808"}, {"d", "1.500000"}, {"zero", "0.000000e+00"},
      {"big", "1000000000.000000"}, {"over", "1.500000e+09"}, {"t", "true"}, {"f", "false"},
      {"null", ""}, {"a", ""}, {"o", ""}, {"S", "case"}, {"D", ""}, {"", ""}};
  // clang-format on
  for (const auto& [key, text] : cases) EXPECT_EQ(object.valueText(key), text) << key;
  EXPECT_EQ(CJsonObject("[1]").valueText(""), "");
  EXPECT_EQ(CJsonObject().valueText("a"), "");
}

TEST(JsonObject, ReadsArraysOfText) {
  const CJsonObject object("[\"a.png\",7,\"\"]");
  std::string text = "before";
  EXPECT_TRUE(object.isArray());
  EXPECT_EQ(object.arraySize(), 3U);
  EXPECT_FALSE(object.getArrayText(1, text));
  EXPECT_FALSE(object.getArrayText(3, text));
  EXPECT_FALSE(object.getArrayText(0xFFFFFFFF, text));
  EXPECT_EQ(text, "before");
  EXPECT_TRUE(object.getArrayText(0, text));
  EXPECT_EQ(text, "a.png");
  EXPECT_TRUE(object.getArrayText(2, text));
  EXPECT_EQ(text, "");

  for (const char* other : {"", "{\"0\":\"a\"}", "\"a\""}) {
    const CJsonObject none(other);
    EXPECT_FALSE(none.isArray()) << other;
    EXPECT_EQ(none.arraySize(), 0U) << other;
    EXPECT_FALSE(none.getArrayText(0, text)) << other;
  }
}

TEST(JsonObject, HandsOutTheSameWrapper) {
  CJsonObject object(R"({"list":[{"a":1},[2]],"b":{}})");
  CJsonObject& list = object.member("list");
  CJsonObject& first = list.element(0);
  EXPECT_TRUE(first.addText("c", "new"));
  for (int i = 0; i < 100; ++i) object.addInt(std::to_string(i), i);
  EXPECT_EQ(&object.member("list"), &list);
  EXPECT_EQ(&list.element(0), &first);
  EXPECT_EQ(first.valueText("a"), "1");
  EXPECT_EQ(list.toText(), R"([{"a":1,"c":"new"},[2]])");
  EXPECT_EQ(list.element(1).element(0).toText(), "2");
  list.clear();
  EXPECT_FALSE(list.parseText("["));
  EXPECT_EQ(list.toText(), "");
  EXPECT_EQ(object.member("list").toText(), R"([{"a":1,"c":"new"},[2]])");
}

TEST(JsonObject, MissingChildrenAreHarmless) {
  CJsonObject object;
  CJsonObject& child = object.member("a");
  EXPECT_EQ(child.member("b").element(3).valueText("c"), "");
  EXPECT_TRUE(object.addInt("a", 5));
  EXPECT_EQ(&object.member("a"), &child);
  EXPECT_EQ(child.toText(), "5");
  for (const char* text : {"[1]", "{\"a\":1}", "7"}) {
    CJsonObject other(text);
    EXPECT_EQ(other.member("0").toText() + other.element(1).toText(), "") << text;
  }

  // What is added to a missing one stays its own, until it is cleared.
  CJsonObject& other = object.member("other");
  EXPECT_TRUE(other.addInt("x", 1));
  EXPECT_EQ(object.toText(), R"({"a":5})");
  EXPECT_TRUE(object.addInt("other", 6));
  EXPECT_EQ(object.member("other").toText(), R"({"x":1})");
  other.clear();
  EXPECT_EQ(object.member("other").toText(), "6");
}

TEST(JsonObject, ParsingAnewForgetsTheChildren) {
  CJsonObject object("{\"a\":\"first\"}");
  EXPECT_EQ(object.member("a").toText(), "\"first\"");
  EXPECT_TRUE(object.parseText("[7]"));
  EXPECT_EQ(object.member("a").toText(), "");
  EXPECT_EQ(object.element(0).toText(), "7");
  EXPECT_TRUE(object.element(1).addInt("of its own", 1));
  object.clear();
  EXPECT_EQ(object.element(1).toText(), "");
  EXPECT_TRUE(object.addInt("b", 1));
  EXPECT_EQ(object.toText(), "{\"b\":1}");
}

}  // namespace
