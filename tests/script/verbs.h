// SPDX-License-Identifier: MIT
// What a step can do: the verbs of the scripts.
#pragma once

#include "script/script.h"
#include "script/stage.h"

enum VerbTrait {
    InProgram = 1, ///< works in the windows
    Acts = 2,      ///< what a person does, who has read each box by then
    Checks = 4,    ///< a case needs one of these
};

struct Verb
{
    QStringView name;
    int traits;

    /// Does the step, or throws NotYet before it has done anything.
    void (*run)(Stage &stage, const Step &step);

    bool is(VerbTrait trait) const { return (traits & trait) != 0; }
};

/// The verb of that name, or nullptr.
const Verb *findVerb(const QString &name);
