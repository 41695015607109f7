#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "platform/windows/ProcessiWindows.h"

namespace kelvo::prove {
namespace {

using Fine = EsitoProcesso::Fine;
using std::chrono::milliseconds;
using std::chrono::seconds;

TEST(ArgomentoWindows, StandsBetweenQuotesWhereItNeedsThem) {
    EXPECT_EQ(argomentoWindows(L"--headless"), L"--headless");
    EXPECT_EQ(argomentoWindows(L""), L"\"\"");
    EXPECT_EQ(argomentoWindows(L"a b"), L"\"a b\"");
    EXPECT_EQ(argomentoWindows(L"C:\\dati"), L"C:\\dati");
    EXPECT_EQ(argomentoWindows(L"C:\\i miei\\"), L"\"C:\\i miei\\\\\"");
    EXPECT_EQ(argomentoWindows(L"a\"b"), L"\"a\\\"b\"");
    EXPECT_EQ(argomentoWindows(L"a\\\"b"), L"\"a\\\\\\\"b\"");
}

TEST(ProcessiWindows, FindsRunsAndEndsPrograms) {
    ProcessiWindows processi;
    const std::string cmd = processi.trova("cmd");
    ASSERT_NE(cmd, "");
    EXPECT_EQ(processi.trova("nessuno-di-nome-simile"), "");
    const EsitoProcesso esito = processi.esegui(cmd, {"/c", "exit", "7"}, seconds(60), {});
    EXPECT_EQ(esito.fine, Fine::uscito);
    EXPECT_EQ(esito.codice, 7);
    EXPECT_EQ(processi.esegui(cmd + ".manca", {}, seconds(60), {}).fine, Fine::nonAvviato);
    const std::string lento = processi.trova("ping");
    if (lento.empty()) {
        GTEST_SKIP() << "nothing here that takes its time";
    }
    int giri = 0;
    EXPECT_EQ(processi.esegui(lento, {"-n", "60", "127.0.0.1"}, milliseconds(800), [&] { ++giri; }).fine,
              Fine::scaduto);
    EXPECT_GE(giri, 2);
}

}  // namespace
}  // namespace kelvo::prove
