// The scripted window's own reading of a script: a line it cannot read is reported, whatever
// it holds, and the run goes no further.
#include <gtest/gtest.h>

#include <sstream>

#include "app/headless/script.h"
#include "test_support.h"

using namespace lex;

TEST(Script, AnUnreadableLineEndsTheRunWithItsNumber) {
  for (const char* ligne : {"key F99999999999", "key F0", "key Ctrl+", "caret 0 1", "answer font Arial x", "frobnicate"}) {
    test::DossierTemp d;
    std::istringstream script(std::string("show\n") + ligne + "\nshow\n");
    std::ostringstream sortie;
    EXPECT_EQ(headless::RunScript(d.Dossier(), script, sortie), 2) << ligne;
    EXPECT_NE(sortie.str().find("{\"ev\":\"error\",\"line\":2,"), std::string::npos) << ligne;
  }
}
