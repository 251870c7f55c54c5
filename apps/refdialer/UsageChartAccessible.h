// SPDX-License-Identifier: MIT
#pragma once

namespace refdialer
{

class UsageChart;

/// Lets screen readers see each bar of a chart as a part of it, with its figures for a name.
void makeChartsAccessible();
/// Tells them of the current bar.
void tellAssistants(UsageChart &chart);

} // namespace refdialer
