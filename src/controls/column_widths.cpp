// The spreading of column_widths.h.
#include "controls/column_widths.h"

#include <algorithm>
#include <numeric>

#include "controls/twips.h"

std::vector<int> columnWidths(const std::vector<int>& twips, int available) {
    std::vector<int> widths(twips.size());
    std::transform(twips.begin(), twips.end(), widths.begin(), toPixels);
    const int own = std::accumulate(widths.begin(), widths.end(), 0);
    const int left = available - own;
    if (own == 0 || left <= 0)
        return widths;
    int ownSoFar = 0;
    int spreadSoFar = 0;
    for (int& width : widths) {
        ownSoFar += width;
        const int spread = left * ownSoFar / own;
        width += spread - spreadSoFar;
        spreadSoFar = spread;
    }
    return widths;
}
