// SPDX-License-Identifier: MIT
#include "InputError.h"

#include "CompressedInput.h"

namespace formats
{

InputError notReadToTheEnd(const history::Sentence &name, const QIODevice &device)
{
    return InputError({history::translatable("formats", "%1 cannot be read to its end: %2. Nothing "
                                                        "was imported."),
                       {name, readError(device)}});
}

} // namespace formats
