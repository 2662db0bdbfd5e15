// A list of colours whose answer to a new recent colour is of no use.
#pragma once

// While it lives, AddColorToMRU does its work and gives this answer; one at a time.
class MisleadingColors
{
public:
    explicit MisleadingColors(int answer);
    ~MisleadingColors();
    MisleadingColors(const MisleadingColors&) = delete;
    MisleadingColors& operator=(const MisleadingColors&) = delete;
};
