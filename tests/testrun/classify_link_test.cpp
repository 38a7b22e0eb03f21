// SPDX-License-Identifier: MIT
#include "testrun/classify_link.h"

#include <gtest/gtest.h>

namespace kev {
namespace {

struct Case {
  const char* text;
  LinkKind kind;
  const char* after;
};

TEST(ClassifyLink, TellsLocalFromRemote) {
  constexpr Case kCases[] = {
      {"logo.png", LinkKind::Local, "logo.png"},
      {"  logo.png ", LinkKind::Local, "logo.png"},
      {"", LinkKind::Local, ""},
      {"c:\\pictures\\logo.png", LinkKind::Local, "c:\\pictures\\logo.png"},
      {"http://a\\b", LinkKind::Local, "http://a\\b"},
      {"a/b\\c", LinkKind::Local, "a/b\\c"},
      {"www.example.org/logo.png", LinkKind::Remote, "http://www.example.org/logo.png"},
      {"http://example.org/a.png", LinkKind::Remote, "http://example.org/a.png"},
      {"HTTPS://example.org", LinkKind::Remote, "HTTPS://example.org"},
      {"ftp://example.org/a", LinkKind::Remote, "ftp://example.org/a"},
      {"www.example.org", LinkKind::Local, "www.example.org"},
      {"a.b.c.d", LinkKind::Remote, "http://a.b.c.d"},
      {"a.b.c.d\\e", LinkKind::Local, "a.b.c.d\\e"},
      {"/home/u/a.png", LinkKind::Remote, "http:///home/u/a.png"},
  };
  for (const Case& each : kCases) {
    std::string text = each.text;
    EXPECT_EQ(ClassifyLink(text), each.kind) << each.text;
    EXPECT_EQ(text, each.after);
  }
}

}  // namespace
}  // namespace kev
