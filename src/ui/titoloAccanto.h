#pragma once

class QHBoxLayout;

namespace kelvo::ui {

class VistaFinestra;

/// Puts a strip with the sign of the program and the caption above what a small window beside the others shows; answers
/// its row.
QHBoxLayout* titoloAccanto(VistaFinestra& vista);

}  // namespace kelvo::ui
