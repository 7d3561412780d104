#include "platform/HeadlessGraph.h"

namespace ventrix::platform {

// Writing a range turns automatic scaling off, as on the graph in the window.
void HeadlessGraph::SetAxisMinimum(GraphAxis axis, double value)
{
    At(axis).minimum = value;
    At(axis).autoScale = false;
}

void HeadlessGraph::SetAxisMaximum(GraphAxis axis, double value)
{
    At(axis).maximum = value;
    At(axis).autoScale = false;
}

} // namespace ventrix::platform
