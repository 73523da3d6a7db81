// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/photo_access.h"

#include "platform/atomic_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <utility>

namespace {

struct StatusName {
    PhotoAuthorization status;
    const char* name;
};

constexpr std::array answers = {
    StatusName{PhotoAuthorization::denied, "denied"},
    StatusName{PhotoAuthorization::authorized, "authorized"},
    StatusName{PhotoAuthorization::limited, "limited"},
};

constexpr qint64 longestFile = 65'536; // bytes; five times the longest path, encoded
constexpr const char* statusField = "status=";
constexpr const char* folderField = "folder=";

/// The answer without what does not belong to its status; none where it is no answer.
std::optional<PhotoAccess> checked(const PhotoAccess& access)
{
    if (access.status != PhotoAuthorization::limited)
        return PhotoAccess{access.status};
    if (!access.folder.startsWith('/') || access.folder.contains('\0'))
        return std::nullopt;
    return access;
}

std::optional<PhotoAccess> answerIn(const QByteArray& contents)
{
    const QList<QByteArray> lines = contents.split('\n');
    const auto answer = std::ranges::find_if(answers, [&lines](const StatusName& candidate) {
        return lines.first() == QByteArray(statusField) + candidate.name;
    });
    if (answer == answers.end())
        return std::nullopt;
    PhotoAccess access{answer->status};
    if (lines.size() > 1 && lines.at(1).startsWith(folderField))
        access.folder =
            QByteArray::fromPercentEncoding(lines.at(1).mid(qsizetype(qstrlen(folderField))));
    return checked(access);
}

} // namespace

PhotoAccessStore::PhotoAccessStore(QString file)
    : m_file(std::move(file))
{
}

PhotoAccess PhotoAccessStore::read() const
{
    if (m_unsaved)
        return *m_unsaved;
    QFile file(m_file);
    // Opening a pipe would wait for whoever writes into it.
    if (!QFileInfo(m_file).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return answerIn(file.read(longestFile)).value_or(PhotoAccess{});
}

bool PhotoAccessStore::write(const PhotoAccess& answer)
{
    const auto known = std::ranges::find(answers, answer.status, &StatusName::status);
    const std::optional<PhotoAccess> access = checked(answer);
    if (known == answers.end() || !access)
        return false;
    QByteArray contents = QByteArray(statusField) + known->name + '\n';
    if (access->status == PhotoAuthorization::limited)
        contents += folderField + access->folder.toPercentEncoding("/") + '\n';
    QDir().mkpath(QFileInfo(m_file).path());
    const bool isSaved =
        !writeAtomically(m_file, contents, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    m_unsaved = isSaved ? std::nullopt : access;
    return isSaved;
}
