// SPDX-License-Identifier: MIT
// Run-time errors: what a failed conversion, sum or Ledger statement raises, and how a handler
// passes over one.
#pragma once

#include <QString>

#include <exception>
#include <utility>

/// A failure that ends the program with a report unless a handler resumes past it.
class RunTimeError : public std::exception
{
public:
    /// The numbers that the runtime raises. A person who asks for support reads one out.
    enum Number : int {
        Overflow = 6,                 ///< a value outside the type it is stored in
        TypeMismatch = 13,            ///< a text that is no number
        InvalidUseOfNull = 94,        ///< no value where a number is wanted
        DatabaseFailure = -2147467259 ///< any failure of the Ledger's engine (0x80004005)
    };

    RunTimeError(Number number, const QString &description);

    Number number() const { return m_number; }

    /// What went wrong, for a database failure in the engine's own words.
    const QString &description() const { return m_description; }

    /// The line that the closing report shows: "Run-time error '13': Type mismatch".
    QString report() const;

    const char *what() const noexcept override { return m_what.constData(); }

private:
    Number m_number;
    QString m_description;
    QByteArray m_what;
};

/// A failure that no handler may pass over: data that was accepted is not where the next start looks
/// for it.
class FatalError : public RunTimeError
{
public:
    using RunTimeError::RunTimeError;
};

[[noreturn]] void raiseTypeMismatch();     ///< raises RunTimeError 13
[[noreturn]] void raiseOverflow();         ///< raises RunTimeError 6
[[noreturn]] void raiseInvalidUseOfNull(); ///< raises RunTimeError 94

/// Runs one statement of a handler that resumes at the next statement after an error.
/// Gives false when the statement failed; a FatalError still rises. Wrap each statement by itself: what stands behind
/// the failing one inside @p statement does not run.
template<typename Statement>
bool resumeNext(Statement &&statement)
{
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const FatalError &) {
        throw;
    } catch (const RunTimeError &) {
        return false;
    }
}
