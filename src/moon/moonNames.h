// What people call the moon: its phases, and the full moon of each month.
#pragma once

// month: 1 to 12. The name in its double quotes; "error #528" for any other month.
const char* fullMoonName(int month);

// degrees since the full moon; whole turns do not count, anything negative counts as full.
const char* phaseName(int degrees);
