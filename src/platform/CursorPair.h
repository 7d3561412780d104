#pragma once

#include <array>
#include <cstddef>
#include <functional>

namespace ventrix::platform {

// The two cursors of a graph, by number (1 and 2; other numbers read 0 and ignore writes): where
// each was put, its mode and whether it shows. A cursor in mode 1 stands on the samples: its X is
// the sample number nearest to where it was put, within the data, and its Y that sample's value;
// with no data it stays where it was put, Y 0. In any other mode it stays where it was put or
// dragged. Shared by the graph on screen and the test fake so that both place cursors alike.
class CursorPair {
public:
    using ValueAt = std::function<double(std::size_t sample)>;

    void SetX(int cursor, double x, std::size_t samples);
    double X(int cursor, std::size_t samples) const;
    double Y(int cursor, std::size_t samples, const ValueAt& valueAt) const;
    void SetFreeY(int cursor, double y); // where a drag left a cursor that is not on the samples

    void SetMode(int cursor, int mode);
    int Mode(int cursor) const;
    void SetVisible(int cursor, bool visible);
    bool Visible(int cursor) const;

    static constexpr int kOnSamples = 1;

private:
    struct Cursor {
        double x = 0.0;
        double y = 0.0;
        int mode = 0;
        bool visible = false;
    };
    Cursor* Find(int cursor);
    const Cursor* Find(int cursor) const;

    std::array<Cursor, 2> m_cursors {};
};

} // namespace ventrix::platform
