#pragma once

namespace kelvo {

/// Makes a call again as long as `rimandata` says of its answer that it was turned away for the moment: `tentativi`
/// calls at most, at least one, with `pausa` between each and the next. The last answer stands.
template <class Chiamata, class Rimandata, class Pausa>
auto insisti(int tentativi, Chiamata chiamata, Rimandata rimandata, Pausa pausa) {
    auto esito = chiamata();
    for (int fatti = 1; rimandata(esito) && fatti < tentativi; ++fatti) {
        pausa();
        esito = chiamata();
    }
    return esito;
}

}  // namespace kelvo
