#include "ventrix-cli/HeadlessGraph.h"

namespace ventrix::cli {

// Writing a range turns automatic scaling off, as on the graph in the window.
void HeadlessGraph::SetAxisMinimum(platform::GraphAxis axis, double value)
{
    At(axis).minimum = value;
    At(axis).autoScale = false;
}

void HeadlessGraph::SetAxisMaximum(platform::GraphAxis axis, double value)
{
    At(axis).maximum = value;
    At(axis).autoScale = false;
}

} // namespace ventrix::cli
