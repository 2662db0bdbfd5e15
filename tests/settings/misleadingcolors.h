// Makes a list of colours return a useless answer for a new recent colour.
#pragma once

// While it lives, AddColorToMRU does its work and returns this answer. Only one object may exist at
// a time.
class MisleadingColors
{
public:
    explicit MisleadingColors(int answer);
    ~MisleadingColors();
    MisleadingColors(const MisleadingColors&) = delete;
    MisleadingColors& operator=(const MisleadingColors&) = delete;
};
