// The start of the program.
#pragma once

namespace modCycles {

// Shows the main window behind a splash, and adopts old databases before it loads, unless another
// instance of the program runs: then it says so, and loads nothing. Raises why an old person
// database cannot be adopted; old interpretation texts that cannot be are left as they are.
void Main();

}  // namespace modCycles
