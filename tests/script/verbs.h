// SPDX-License-Identifier: MIT
// What a step can do: the verbs of the scripts.
#pragma once

#include "script/script.h"
#include "script/stage.h"

enum VerbTrait {
    NeedsProgram = 1, ///< works in the windows
    Acts = 2,         ///< what a person does, who has read each box by then
    Checks = 4,       ///< a case needs one of these
};

struct Verb
{
    QStringView name;
    int traits;

    /// Does the step. Gives "" once it is done, else what is not as it has to be; nothing has been
    /// done by then, and the player tries again for some seconds.
    QString (*run)(Stage &stage, const Step &step);

    bool has(VerbTrait trait) const { return (traits & trait) != 0; }
};

/// The verb of that name, or nullptr.
const Verb *findVerb(const QString &name);
