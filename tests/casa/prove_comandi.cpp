#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "regole.h"

namespace kelvo::prove {
namespace {

TEST(Comandi, TheRunCommandRemovesNoFile) {
    // What stands in its folder of results beside its own texts is the user's.
    const std::string testo = testoDelDeposito("run.sh");
    ASSERT_NE(testo.find("USCITA=uscita"), std::string::npos);
    const std::regex cancella("(^|[^a-zA-Z_-])(rm|rmdir|unlink|find|mv)[ \\t]");
    EXPECT_TRUE(std::regex_search(std::string("rm -f -- x"), cancella));
    EXPECT_FALSE(std::regex_search(testo, cancella));
}

}  // namespace
}  // namespace kelvo::prove
