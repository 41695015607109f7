#include <gtest/gtest.h>

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QThread>
#include <vector>

#include "ui/serviziQt.h"

namespace kelvo::prove {
namespace {

/// Stands for the events of a thread and notes what it is asked to deal with.
class EventiFinti final : public QAbstractEventDispatcher {
public:
    explicit EventiFinti(std::vector<QEventLoop::ProcessEventsFlags>& chiesti) : chiesti_(chiesti) {}

    bool processEvents(QEventLoop::ProcessEventsFlags quali) override {
        chiesti_.push_back(quali);
        return false;
    }
    void registerSocketNotifier(QSocketNotifier* /*uno*/) override {}
    void unregisterSocketNotifier(QSocketNotifier* /*uno*/) override {}
    void registerTimer(int /*uno*/, qint64 /*ogni*/, Qt::TimerType /*tipo*/, QObject* /*di*/) override {}
    bool unregisterTimer(int /*uno*/) override { return false; }
    bool unregisterTimers(QObject* /*di*/) override { return false; }
    QList<TimerInfo> registeredTimers(QObject* /*di*/) const override { return {}; }
    int remainingTime(int /*uno*/) override { return -1; }
    void wakeUp() override {}
    void interrupt() override {}

private:
    std::vector<QEventLoop::ProcessEventsFlags>& chiesti_;
};

class Lavoro final : public QThread {
    void run() override {
        ui::AttesaQt attesa;
        attesa.eventi();
    }
};

TEST(EventiQt, WhatTheUserDoesDuringSomeWorkWaitsForItsEnd) {
    std::vector<QEventLoop::ProcessEventsFlags> chiesti;
    Lavoro lavoro;
    lavoro.setEventDispatcher(new EventiFinti(chiesti));  // the thread owns it
    lavoro.start();
    lavoro.wait();
    ASSERT_EQ(chiesti.size(), 1U);
    EXPECT_TRUE(chiesti.front().testFlag(QEventLoop::ExcludeUserInputEvents));
}

}  // namespace
}  // namespace kelvo::prove
