#pragma once

#include <QString>

#include <optional>
#include <utility>

namespace Nvx::Util {

/// Why there is no value, as text for the user.
struct Failure
{
    QString text;
};

/// The result of an operation that can fail: its value, or the text of the error.
///
///     const Result<Project> project = readProject(path);
///     if (!project)
///         return Failure{project.error()};
///     scan(project->files);
template<typename Value>
class [[nodiscard]] Result
{
public:
    Result(Value value)
        : m_value(std::move(value))
    {
    }
    Result(Failure failure)
        : m_error(std::move(failure.text))
    {
    }

    explicit operator bool() const { return m_value.has_value(); }

    /// The value. The result must be true.
    const Value &operator*() const & { return *m_value; }
    Value &&operator*() && { return *std::move(m_value); }
    const Value *operator->() const { return &*m_value; }

    /// The text of the error; empty if the result is true.
    const QString &error() const { return m_error; }

private:
    std::optional<Value> m_value;
    QString m_error;
};

/// The result of an operation that has no value to return: Done(), or the text of the error.
struct Done
{
};
using Outcome = Result<Done>;

} // namespace Nvx::Util
