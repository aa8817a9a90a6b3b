#include "LargeTexts.h"

namespace {

using vorn::WideString;

WideString repeated(const WideString& piece, std::size_t size) {
  WideString text;
  text.reserve(size + piece.size());
  while (text.size() < size) {
    text += piece;
  }
  return text;
}

Question query(WideString text) { return {Question::Kind::columns, std::move(text)}; }

Question filter(WideString text) { return {Question::Kind::usages, std::move(text)}; }

WideString nested(const WideString& open, const WideString& inside, const WideString& close,
                  std::size_t size) {
  const std::size_t levels = size / (open.size() + close.size());
  WideString text;
  for (std::size_t i = 0; i < levels; ++i) {
    text += open;
  }
  text += inside;
  for (std::size_t i = 0; i < levels; ++i) {
    text += close;
  }
  return text;
}

}  // namespace

const std::vector<LargeText>& linearTexts() {
  static const std::vector<LargeText> texts = {
      {"white space", [](std::size_t size) { return query(repeated(u" ", size) + u"RETURN 1"); }},
      {"one comment",
       [](std::size_t size) { return query(u"/*" + repeated(u"x", size) + u"*/RETURN 1"); }},
      {"one literal",
       [](std::size_t size) { return query(u"RETURN '" + repeated(u"x", size) + u"' AS x"); }},
      {"digits",
       [](std::size_t size) { return query(u"RETURN " + repeated(u"1", size) + u" AS x"); }},
      {"RETURN 1, 1, ...",
       [](std::size_t size) { return query(u"RETURN 1" + repeated(u", 1", size)); }},
      {"n.a = 1 AND n.a = 1 ...",
       [](std::size_t size) { return filter(u"n.a = 1" + repeated(u" AND n.a = 1", size)); }},
      {"MATCH (a) MATCH (a) ...",
       [](std::size_t size) { return query(repeated(u"MATCH (a) ", size) + u"RETURN a"); }},
      {"RETURN (a)-[b]-(a)-[b]-...",
       [](std::size_t size) { return query(u"RETURN (a)" + repeated(u"-[b]-(a)", size)); }},
      {"RETURN [x IN a], [x IN a], ...",
       [](std::size_t size) { return query(u"RETURN 1" + repeated(u", [x IN a | x]", size)); }},
      {"/* /* /* ...",
       [](std::size_t size) { return query(u"RETURN 1 " + repeated(u"/* ", size)); }},
  };
  return texts;
}

const std::vector<LargeText>& nestedTexts() {
  static const std::vector<LargeText> texts = {
      {"RETURN [x IN [x IN ...",
       [](std::size_t size) { return query(u"RETURN " + nested(u"[x IN ", u"1", u"]", size)); }},
      {"RETURN ({a: ({a: ...",
       [](std::size_t size) {
         return query(u"RETURN " + nested(u"({a: ", u"1", u"})-[b]-(c)", size));
       }},
      {"RETURN EXISTS { EXISTS { ...",
       [](std::size_t size) {
         return query(u"RETURN " + nested(u"EXISTS { RETURN ", u"1", u" }", size));
       }},
      {"RETURN ((((... around (a)-[b]-(a)",
       [](std::size_t size) {
         return query(u"RETURN " + nested(u"(", u"(a)-[b]-(a)", u")", size));
       }},
  };
  return texts;
}

const std::vector<LargeText>& wrongTexts() {
  static const std::vector<LargeText> texts = {
      {"(a)-[b]-(a)-[b]-...",
       [](std::size_t size) { return filter(u"(a)" + repeated(u"-[b]-(a)", size) + u" ?"); }},
      {"n.a = 1 AND n.a = 1 ...",
       [](std::size_t size) { return filter(repeated(u"n.a = 1 AND ", size) + u"?"); }},
      {"[x IN a + a + ...",
       [](std::size_t size) { return filter(u"[x IN " + repeated(u"a + ", size) + u"?"); }},
      {"[x IN [x IN ...",
       [](std::size_t size) { return filter(nested(u"[x IN ", u"?", u"]", size)); }},
      {"((((... around (a)-[b]-(a)",
       [](std::size_t size) { return filter(nested(u"(", u"(a)-[b]-(a) ?", u")", size)); }},
  };
  return texts;
}
