#pragma once

#include "page/engine/labels.h"
#include "page/engine/pagetable.h"

// Options that several pages offer with the same values.

inline constexpr Option kCloseOpen[] = {{LABEL("Close"), 0}, {LABEL("Open"), 1}};

inline constexpr Option kGrayResponseOptions[] = {
    {LABEL("Close"), 0}, {LABEL("Level1"), 1}, {LABEL("Level2"), 2}, {LABEL("Level3"), 3}, {LABEL("Topspeed"), 4}};

// The monitor numbers these from 2: 0 and 1 belong to other models.
inline constexpr Option kMotionOptions[] = {{LABEL("Close"), 2},     {LABEL("Low"), 3},        {LABEL("Medium"), 4},
                                            {LABEL("High"), 5},      {LABEL("Ull-Level1"), 6}, {LABEL("Ull-Level2"), 7},
                                            {LABEL("Ull-Level3"), 8}};

inline constexpr Option kOutputRangeOptions[] = {
    {LABEL("RGB Auto"), 0}, {LABEL("RGB Limit"), 1}, {LABEL("RGB Full"), 2}};

inline constexpr Option kNightVisionOptions[] = {
    {LABEL("Close"), 0}, {LABEL("Level1"), 1}, {LABEL("Level2"), 2}, {LABEL("Auto-L1"), 3}, {LABEL("Auto-L2"), 4}};

// A corner of the screen.
inline constexpr Option kCornerOptions[] = {
    {LABEL("Top Left"), 0}, {LABEL("Top Right"), 1}, {LABEL("Bottom Left"), 2}, {LABEL("Bottom Right"), 3}};
