#pragma once

/// Somebody's use of the one analyser: as long as it has begun, the end of another use does not end the capture. Starts
/// nothing itself. Interface thread only.
class SoundUse
{
public:
    ~SoundUse() { end(); }

    void begin();

    /// Stops the capture when nobody else uses it.
    void end();

    /// Whether nobody else uses it.
    bool isAlone() const;

private:
    bool m_isOn = false;
};
