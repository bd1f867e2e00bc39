#pragma once

class AudioVisual;

/// Who gives the LED worker its spectrum frames: the music page. Both calls come on the worker's thread and must
/// neither block nor replace the worker's source; they may ask it for more work.
class LedFrameSource
{
public:
    virtual ~LedFrameSource() = default;

    /// The object for the matrix form that is set, made on first use; null without a form.
    virtual AudioVisual *audioVisual() = 0;

    /// The frame went out, or was tried to.
    virtual void frameSent() = 0;
};
