// The engine's matrix routines against figures worked out by hand.

#include <gtest/gtest.h>

#include "calc/bilanciamento.h"
#include "comune/guasti.h"

namespace kelvo::prove {

namespace {

using Righe = std::vector<std::vector<double>>;

Quadrata<double> quadrata(const Righe& righe) {
    Quadrata<double> A{};
    for (std::size_t r = 0; r < righe.size(); ++r) {
        for (std::size_t c = 0; c < righe.size(); ++c) {
            A[r][c] = righe[r][c];
        }
    }
    return A;
}

/// The true determinant, developed along the first row.
double sviluppo(const Righe& A) {
    if (A.size() == 1) {
        return A[0][0];
    }
    double somma = 0.0;
    for (std::size_t c = 0; c < A.size(); ++c) {
        Righe minore;
        for (std::size_t r = 1; r < A.size(); ++r) {
            std::vector<double> riga = A[r];
            riga.erase(riga.begin() + static_cast<std::ptrdiff_t>(c));
            minore.push_back(riga);
        }
        somma += (c % 2 == 0 ? 1.0 : -1.0) * A[0][c] * sviluppo(minore);
    }
    return somma;
}

const Righe diTre{{2, 5, 1}, {1, 3, 2}, {7, 1, 4}};
const Righe diQuattro{{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 0, 1, 2}, {3, 4, 5, 6}};
const Righe diCinque{{2, 0, 1, 3, 1}, {1, 3, 0, 2, 2}, {4, 1, 2, 1, 0}, {1, 2, 1, 1, 3}, {0, 1, 5, 2, 1}};

constexpr double enorme = 1e200;

}  // namespace

TEST(Matrici, DeterminantOfTwoAndThreeIsTheTrueOne) {
    EXPECT_EQ(Determinante(2, quadrata({{3, 1}, {4, 2}})), 2.0);
    EXPECT_EQ(Determinante(1, quadrata({{3, 1}, {4, 2}})), 2.0);  // the rule of two holds below, too
    EXPECT_EQ(Determinante(3, quadrata(diTre)), 50.0);
    EXPECT_EQ(sviluppo(diTre), 50.0);
}

TEST(Matrici, DeterminantOfFourTakesItsEightDiagonalsAlone) {
    // Falling 36 + 0 + 864 + 84 = 984, rising 0 + 32 + 100 + 972 = 1104; the matrix is singular.
    EXPECT_EQ(Determinante(4, quadrata(diQuattro)), -120.0);
    EXPECT_EQ(sviluppo(diQuattro), 0.0);
}

TEST(Matrici, DeterminantOfFiveTakesItsTenDiagonalsAlone) {
    // Falling 12 + 2 + 240 + 0 + 0 = 254, rising 0 + 4 + 0 + 72 + 0 = 76.
    EXPECT_EQ(Determinante(5, quadrata(diCinque)), 178.0);
    EXPECT_EQ(sviluppo(diCinque), -318.0);
}

TEST(Matrici, DeterminantOfFourCanBeZeroWhereTheTrueOneIsNot) {
    const Righe A{{1, 1, 1, 0}, {0, 1, 1, 0}, {1, 0, 1, 1}, {0, 0, 0, 1}};
    EXPECT_EQ(Determinante(4, quadrata(A)), 0.0);
    EXPECT_EQ(sviluppo(A), 1.0);
}

TEST(Matrici, TransposedSwapsRowsAndColumns) {
    const Quadrata<double> T = Trasposta(4, quadrata(diQuattro));
    EXPECT_EQ(T, quadrata({{1, 5, 9, 3}, {2, 6, 0, 4}, {3, 7, 1, 5}, {4, 8, 2, 6}}));
}

TEST(Matrici, InverseOfThreeIsTheAdjointOverTheDeterminant) {
    const Quadrata<double> A = quadrata(diTre);
    const Quadrata<double> I = Inversa(3, A, Trasposta(3, A), Determinante(3, A));
    // Cofactors by hand: first row of the adjoint 10, -19, 7.
    EXPECT_EQ(I, quadrata({{10.0 / 50, -19.0 / 50, 7.0 / 50},
                           {10.0 / 50, 1.0 / 50, -3.0 / 50},
                           {-20.0 / 50, 33.0 / 50, 1.0 / 50}}));
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            const double cella = I[i][0] * A[0][j] + I[i][1] * A[1][j] + I[i][2] * A[2][j];
            EXPECT_NEAR(cella, i == j ? 1.0 : 0.0, 1e-15) << i << ", " << j;
        }
    }
}

TEST(Matrici, InverseByADeterminantOfZeroIsADivisionByZero) {
    const Quadrata<double> A = quadrata(diTre);
    EXPECT_EQ(numeroGuasto([&] { (void)Inversa(3, A, Trasposta(3, A), 0.0); }), 11);
}

TEST(Matrici, ProductTakesTheRowsOfTheMatrix) {
    // 2 + 10 + 3, 1 + 6 + 6, 7 + 2 + 12
    const PerRamo<double> b{1.0, 2.0, 3.0};
    EXPECT_EQ(Prodotto(3, b, quadrata(diTre)), (PerRamo<double>{15.0, 13.0, 21.0}));
}

TEST(Matrici, ValuesTooLargeOverflow) {
    EXPECT_EQ(numeroGuasto([] { (void)Determinante(2, quadrata({{enorme, 0}, {0, enorme}})); }), 6);
    EXPECT_EQ(numeroGuasto([] { (void)Determinante(3, quadrata({{enorme, 0, 0}, {0, enorme, 0}, {0, 0, 1}})); }), 6);
    EXPECT_EQ(numeroGuasto([] { (void)Determinante(2, quadrata({{1e-200, 0}, {0, enorme}})); }), 0);
    EXPECT_EQ(numeroGuasto([] { (void)Prodotto(2, {0.0, enorme}, quadrata({{1, 1}, {1, enorme}})); }), 6);
    EXPECT_EQ(numeroGuasto([] { (void)Prodotto(2, {0.0, enorme}, quadrata({{1, 1}, {enorme, 1}})); }), 0);
}

TEST(Matrici, ColumnsHoldTheWeightsThatAreNotZeroWithoutTheDiagonal) {
    Quadrata<float> M{};
    M[0] = {1.0F, 0.25F, 0.0F};
    M[1] = {0.0F, 1.0F, 0.5F};
    M[2] = {0.0F, 0.75F, 1.0F};
    const PerRamo<Colonna> colonne = colonneDi(3, M);
    EXPECT_EQ(colonne[0].quanti, 0U);
    ASSERT_EQ(colonne[1].quanti, 2U);
    EXPECT_EQ(colonne[1].righe[0], 0U);
    EXPECT_EQ(colonne[1].righe[1], 2U);
    EXPECT_EQ(colonne[1].pesi[0], 0.25);
    EXPECT_EQ(colonne[1].pesi[1], 0.75);
    ASSERT_EQ(colonne[2].quanti, 1U);
    EXPECT_EQ(colonne[2].righe[0], 1U);
    EXPECT_EQ(colonne[2].pesi[0], 0.5);
}

}  // namespace kelvo::prove
