#include "disegno/codificaPng.h"

#include <QtCore/QBuffer>
#include <QtGui/QColor>
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <optional>
#include <vector>

namespace kelvo::disegno {

namespace {

constexpr std::size_t massimoTavolozza = 256;
/// Past so many colours a picture is no drawing of ours.
constexpr std::size_t massimoColori = 4096;
/// Level 3 of the packing: the toolkit's own level 6 takes twice as long to save a fifth of the bytes.
constexpr int qualitaPng = 60;

/// The colours of a picture in the order in which they appear, and how many pixels have each.
class Censimento {
public:
    /// Number of a colour, counted once more; nothing once there are too many.
    std::optional<std::uint16_t> conta(QRgb colore) {
        if (!colori_.empty() && colore == colori_[ultimo_]) {
            ++quanti_[ultimo_];
            return ultimo_;
        }
        std::size_t posto = (colore * moltiplicatore) >> scorrimento;
        while (caselle_[posto] != 0 && colori_[caselle_[posto] - 1U] != colore) {
            posto = (posto + 1) % caselle_.size();
        }
        if (caselle_[posto] == 0) {
            if (colori_.size() == massimoColori) {
                return std::nullopt;
            }
            colori_.push_back(colore);
            quanti_.push_back(0);
            caselle_[posto] = static_cast<std::uint16_t>(colori_.size());
        }
        ultimo_ = static_cast<std::uint16_t>(caselle_[posto] - 1U);
        ++quanti_[ultimo_];
        return ultimo_;
    }
    const std::vector<QRgb>& colori() const { return colori_; }
    /// Numbers of the colours, the most frequent first; of equally frequent ones the first seen.
    std::vector<std::uint16_t> perFrequenza() const {
        std::vector<std::uint16_t> ordine(colori_.size());
        std::iota(ordine.begin(), ordine.end(), std::uint16_t{0});
        std::stable_sort(ordine.begin(), ordine.end(),
                         [&](std::uint16_t a, std::uint16_t b) { return quanti_[a] > quanti_[b]; });
        return ordine;
    }

private:
    static constexpr std::uint32_t moltiplicatore = 2654435761U;  // the golden section of 2^32 spreads near colours
    static constexpr int scorrimento = 32 - 14;

    std::array<std::uint16_t, 1U << 14U> caselle_{};  ///< number of a colour plus 1; 0 for none
    std::vector<QRgb> colori_;
    std::vector<std::uint32_t> quanti_;
    std::uint16_t ultimo_ = 0;
};

int scarto(QRgb a, QRgb b) {
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

/// Place in the palette of each colour; empty where one is too far from all of them.
std::vector<std::uint8_t> posti(const Censimento& censimento, const std::vector<std::uint16_t>& ordine,
                                const QList<QRgb>& tavolozza) {
    std::vector<std::uint8_t> posti(censimento.colori().size());
    for (std::size_t i = 0; i < ordine.size(); ++i) {
        if (i < massimoTavolozza) {
            posti[ordine[i]] = static_cast<std::uint8_t>(i);
            continue;
        }
        const QRgb raro = censimento.colori()[ordine[i]];
        const auto vicino = std::min_element(tavolozza.begin(), tavolozza.end(),
                                             [&](QRgb a, QRgb b) { return scarto(a, raro) < scarto(b, raro); });
        if (scarto(*vicino, raro) > scartoTavolozza) {
            return {};
        }
        posti[ordine[i]] = static_cast<std::uint8_t>(vicino - tavolozza.begin());
    }
    return posti;
}

}  // namespace

QImage conTavolozza(const QImage& immagine) {
    const auto larga = static_cast<std::size_t>(immagine.width());
    std::vector<std::uint16_t> numeri;
    numeri.reserve(larga * static_cast<std::size_t>(immagine.height()));
    Censimento censimento;
    for (int y = 0; y < immagine.height(); ++y) {
        const auto* riga = reinterpret_cast<const QRgb*>(immagine.constScanLine(y));
        for (std::size_t x = 0; x < larga; ++x) {
            const auto numero = censimento.conta(riga[x] | 0xff000000U);
            if (!numero) {
                return {};
            }
            numeri.push_back(*numero);
        }
    }
    const std::vector<std::uint16_t> ordine = censimento.perFrequenza();
    QList<QRgb> tavolozza;
    for (std::size_t i = 0; i < std::min(ordine.size(), massimoTavolozza); ++i) {
        tavolozza.push_back(censimento.colori()[ordine[i]]);
    }
    const std::vector<std::uint8_t> posto = posti(censimento, ordine, tavolozza);
    if (posto.empty()) {
        return {};
    }
    QImage ridotta(immagine.size(), QImage::Format_Indexed8);
    ridotta.setColorTable(tavolozza);
    ridotta.setDotsPerMeterX(immagine.dotsPerMeterX());
    ridotta.setDotsPerMeterY(immagine.dotsPerMeterY());
    auto numero = numeri.cbegin();
    for (int y = 0; y < immagine.height(); ++y) {
        uchar* riga = ridotta.scanLine(y);
        for (std::size_t x = 0; x < larga; ++x) {
            riga[x] = posto[*numero++];
        }
    }
    return ridotta;
}

QByteArray codificaPng(const QImage& immagine) {
    const QImage ridotta = conTavolozza(immagine);
    QByteArray byte;
    QBuffer memoria(&byte);
    memoria.open(QIODevice::WriteOnly);
    const QImage& scritta = ridotta.isNull() ? immagine : ridotta;
    return scritta.save(&memoria, "PNG", qualitaPng) ? byte : QByteArray{};
}

}  // namespace kelvo::disegno
