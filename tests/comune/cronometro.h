#pragma once

#include <functional>
#include <vector>

#include "app/serviziSistema.h"

namespace kelvo::prove {

/// A timer on a clock that only the test moves.
class CronometroATempo final : public Cronometro {
public:
    void ogni(int millisecondi, const std::function<void()>& cosa) override {
        passo_ = millisecondi;
        prossimo_ = adesso_ + millisecondi;
        cosa_ = cosa;
        chiesti.push_back(millisecondi);
    }
    void ferma() override { cosa_ = {}; }
    bool attivo() const { return static_cast<bool>(cosa_); }
    int adesso() const { return adesso_; }
    /// Lets so many milliseconds pass and calls back as often as they ask for.
    void avanza(int millisecondi) {
        const int fine = adesso_ + millisecondi;
        while (cosa_ && prossimo_ <= fine) {
            adesso_ = prossimo_;
            prossimo_ += passo_;
            const std::function<void()> questa = cosa_;  // it may be replaced while it runs
            questa();
        }
        adesso_ = fine;
    }
    std::vector<int> chiesti;  ///< the distances that were asked for, in order

private:
    std::function<void()> cosa_;
    int adesso_ = 0;
    int prossimo_ = 0;
    int passo_ = 0;
};

}  // namespace kelvo::prove
