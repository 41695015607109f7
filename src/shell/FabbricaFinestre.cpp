#include "shell/FabbricaFinestre.h"

#include "base/guasto.h"

namespace kelvo {

std::vector<std::string> FabbricaFinestre::nomi() const {
    std::vector<std::string> tutti;
    tutti.reserve(creatori_.size());
    for (const auto& voce : creatori_) {
        tutti.push_back(voce.first);
    }
    return tutti;
}

Finestra& FabbricaFinestre::finestra(std::string_view nome, const Contorno& contorno) {
    if (Finestra* trovata = viva(nome)) {
        return *trovata;
    }
    const auto creatore = creatori_.find(nome);
    if (creatore == creatori_.end()) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, "finestra '" + std::string{nome} + "'");
    }
    Finestra& nuova = *vive_.emplace(std::string{nome}, creatore->second(contorno)).first->second;
    if (allaNascita) {
        allaNascita(nuova);
    }
    return nuova;
}

Finestra* FabbricaFinestre::viva(std::string_view nome) const {
    const auto trovata = vive_.find(nome);
    return trovata == vive_.end() ? nullptr : trovata->second.get();
}

void FabbricaFinestre::distruggi(std::string_view nome) {
    const auto trovata = vive_.find(nome);
    if (trovata == vive_.end()) {
        return;
    }
    if (allaFine) {
        allaFine(*trovata->second);
    }
    vive_.erase(trovata);
}

void FabbricaFinestre::distruggi() {
    while (!vive_.empty()) {
        distruggi(std::string{vive_.begin()->first});
    }
}

}  // namespace kelvo
