// SPDX-License-Identifier: MIT
// Run-time errors, thrown by a failed conversion, sum or Ledger statement, and how a handler
// resumes after one.
#pragma once

#include <QString>

#include <exception>
#include <utility>

/// An error that ends the program with a report unless a handler resumes after it.
class RunTimeError : public std::exception
{
public:
    /// The error numbers. They are shown to the user, who can quote them to the support.
    enum Number : int {
        Overflow = 6,                 ///< a value out of range
        TypeMismatch = 13,            ///< a text that is not a number
        InvalidUseOfNull = 94,        ///< NULL where a number is required
        DatabaseFailure = -2147467259 ///< any failure of the Ledger (0x80004005)
    };

    RunTimeError(Number number, const QString &description);

    Number number() const { return m_number; }

    /// Returns what went wrong; after a failure of SQLite, its own message.
    const QString &description() const { return m_description; }

    /// Returns the text of the report, such as "Run-time error '13': Type mismatch".
    QString report() const;

    const char *what() const noexcept override { return m_what.constData(); }

private:
    Number m_number;
    QString m_description;
    QByteArray m_what;
};

/// An error that resumeNext() does not catch: saved data is not where the next start looks for it.
class FatalError : public RunTimeError
{
public:
    using RunTimeError::RunTimeError;
};

[[noreturn]] void raiseTypeMismatch();     ///< throws RunTimeError 13
[[noreturn]] void raiseOverflow();         ///< throws RunTimeError 6
[[noreturn]] void raiseInvalidUseOfNull(); ///< throws RunTimeError 94

/// Runs one statement of a handler that resumes at the next statement after an error. Returns false
/// if it threw a RunTimeError; a FatalError is passed on. Wrap each statement separately, since an
/// error skips the rest of @p statement. Does not catch an error in a slot that @p statement causes to
/// run: that ends the program.
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
