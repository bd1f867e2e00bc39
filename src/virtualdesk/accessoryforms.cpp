#include "virtualdesk/accessoryforms.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <numeric>

namespace virtualdesk {

namespace {

/// How a model is built: one or two strips, wired one behind the other, of which the second lies between the rows of
/// the first, half a cell beside them.
struct Model
{
    int number;
    int strips;
    int rows;    ///< of both
    int columns; ///< of the first strip's first row; that of the second has one less
    bool tapers; ///< the third of three rows of a strip has a cell less, the one behind it another
};

constexpr Model kFormModels[] = {
    {0, 2, 73, 25, true},
    {1, 1, 25, 42, false},
};

const Model *modelOf(int form)
{
    const auto *model = std::find_if(std::begin(kFormModels), std::end(kFormModels),
                                     [form](const Model &each) { return each.number == form; });
    return model == std::end(kFormModels) ? nullptr : model;
}

std::vector<MatrixRow> rowsOf(const Model &model)
{
    std::vector<MatrixRow> rows(static_cast<std::size_t>(model.rows));
    int first = 0;
    for (int strip = 0; strip < model.strips; ++strip) {
        for (int row = strip; row < model.rows; row += model.strips) {
            const int inStrip = row / model.strips;
            const int gone = model.tapers ? inStrip / 3 * 2 + inStrip % 3 / 2 : 0;
            rows[static_cast<std::size_t>(row)] = {model.columns - strip - gone, first};
            first += model.columns - strip - gone;
        }
    }
    return rows;
}

} // namespace

const std::vector<MatrixRow> &matrixRows(int form)
{
    static const auto all = [] {
        std::map<int, std::vector<MatrixRow>> models;
        for (const Model &model : kFormModels)
            models.emplace(model.number, rowsOf(model));
        return models;
    }();
    static const std::vector<MatrixRow> none;
    const auto rows = all.find(form);
    return rows == all.end() ? none : rows->second;
}

int matrixCells(int form)
{
    const auto &rows = matrixRows(form);
    return std::accumulate(rows.begin(), rows.end(), 0, [](int sum, const MatrixRow &row) { return sum + row.cells; });
}

int matrixColumns(int form)
{
    const Model *model = modelOf(form);
    return model ? model->columns : 0;
}

double matrixRowPitch(int form)
{
    const Model *model = modelOf(form);
    return model ? 1.0 / model->strips : 1.0;
}

std::vector<int> knownForms()
{
    std::vector<int> numbers;
    std::transform(std::begin(kFormModels), std::end(kFormModels), std::back_inserter(numbers),
                   [](const Model &model) { return model.number; });
    return numbers;
}

int nextForm(int form)
{
    const Model *model = modelOf(form);
    return model && model + 1 != std::end(kFormModels) ? model[1].number : kFormModels[0].number;
}

/// The rows of a strip stand in its middle, as far as its lattice lets them.
int matrixRowShift(int form, int row)
{
    const Model *model = modelOf(form);
    const int strip = row % model->strips;
    const int missing = model->columns - strip - matrixRows(form)[static_cast<std::size_t>(row)].cells;
    return missing / 2 * 2 + strip;
}

} // namespace virtualdesk
