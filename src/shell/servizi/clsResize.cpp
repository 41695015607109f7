#include "shell/servizi/clsResize.h"

#include <array>
#include <charconv>

#include "base/numeri.h"

namespace kelvo {

std::string clsResize::scriviTag(const Rettangolo& r) {
    return "@" + testoEsatto(r.L) + "," + testoEsatto(r.T) + "," + testoEsatto(r.W) + "," + testoEsatto(r.H);
}

std::optional<Rettangolo> clsResize::leggiTag(std::string_view tag) {
    if (!tag.starts_with('@')) {
        return std::nullopt;
    }
    tag.remove_prefix(1);
    std::array<double, 4> numeri{};
    for (std::size_t i = 0; i < numeri.size(); ++i) {
        const auto esito = std::from_chars(tag.data(), tag.data() + tag.size(), numeri[i]);
        if (esito.ec != std::errc{}) {
            return std::nullopt;
        }
        tag.remove_prefix(static_cast<std::size_t>(esito.ptr - tag.data()));
        const bool ultimo = i + 1 == numeri.size();
        if (ultimo ? !tag.empty() : !tag.starts_with(',')) {
            return std::nullopt;
        }
        if (!ultimo) {
            tag.remove_prefix(1);
        }
    }
    return Rettangolo{numeri[0], numeri[1], numeri[2], numeri[3]};
}

void clsResize::SourceForm(Modulo* modulo) {
    modulo_ = modulo;
    tag_.clear();
    if (modulo_ != nullptr) {
        disegno_ = modulo_->disegno;
        for (const Rettangolo& r : modulo_->controlli) {
            tag_.push_back(scriviTag(r));
        }
    }
}

void clsResize::ReInitialise() {
    if (modulo_ != nullptr) {
        modulo_->disegno = modulo_->attuale;
        SourceForm(modulo_);
    }
}

void clsResize::SizeFormToScreen(Misura schermo) {
    if (modulo_ != nullptr) {
        modulo_->attuale = schermo;
        ResizeControls();
    }
}

void clsResize::ResizeControls() {
    if (modulo_ == nullptr || disegno_.W <= 0.0 || disegno_.H <= 0.0) {
        return;
    }
    const double x = modulo_->attuale.W / disegno_.W;
    const double y = modulo_->attuale.H / disegno_.H;
    for (std::size_t i = 0; i < tag_.size(); ++i) {
        if (const auto r = leggiTag(tag_[i])) {
            modulo_->controlli[i] = {r->L * x, r->T * y, r->W * x, r->H * y};
        }
    }
}

}  // namespace kelvo
