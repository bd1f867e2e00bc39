#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "ledmatrix/matrixframe.h"
#include "ledmatrix/matrixgeometry.h"
#include "page/Nightloom/render/audiovisual.h"

/// How the bars are drawn.
enum class AudioTemplate { Bars, Peaks, Mirrored, Hanging };
inline constexpr int kAudioTemplates = 4;

/// Draws the spectrum as eleven bars side by side. A height is drawn as a share of its greatest height, so that a full
/// bar fills its column whatever the form; greater ones are drawn as full, missing ones as nothing.
class AudioBars : public AudioVisual
{
public:
    void setTemplate(AudioTemplate which) { m_template = which; }

    /// All cells off; the peaks stay where they are.
    void clear() override;
    /// Lets every peak fall by a step, and draws the heights.
    void setLevels(const std::vector<std::int32_t> &levels) override;
    /// Draws what is shown once more, after the template was changed; no peak falls.
    void redraw();
    /// Nothing is heard any more: all cells off, and no peaks.
    void reset();
    std::span<const std::int32_t> frame() const override { return m_flat; }

    /// Steps of a bar's column.
    int depth(std::size_t bar) const { return static_cast<int>(m_columns[bar].size()); }

protected:
    explicit AudioBars(const MatrixForm &form);

    /// Adds the next higher step to a bar's column: as many cells as a bar is wide, from this one to the right.
    void addStep(std::size_t bar, int row, int column) { m_columns[bar].push_back({row, column}); }

private:
    int litSteps(std::size_t bar, std::int32_t height) const;
    void light(std::size_t bar, int step);
    void lightFrom(std::size_t bar, int first, int count);
    void draw();

    const MatrixForm &m_form;
    AudioTemplate m_template = AudioTemplate::Bars;
    MatrixFrame m_frame;
    std::vector<std::int32_t> m_flat;
    std::array<std::vector<MatrixCell>, kSpectrumBands> m_columns; // steps from the foot up
    std::array<int, kSpectrumBands> m_lit{};                       // steps
    std::array<int, kSpectrumBands> m_peaks{};                     // as counts of lit steps
};

/// Bars for staggered rows: each as high as the form is deep there, with its foot on the slanting edge.
class AudioLed final : public AudioBars
{
public:
    explicit AudioLed(const MatrixForm &form);
};

/// Bars for upright rows: over the form's whole height.
class AudioLedRect final : public AudioBars
{
public:
    explicit AudioLedRect(const MatrixForm &form);
};

/// The bars of a form.
std::unique_ptr<AudioBars> makeAudioBars(const MatrixForm &form);
