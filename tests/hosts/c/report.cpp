#include "../../../examples/hosts/report.c"  // NOLINT(bugprone-suspicious-include)
