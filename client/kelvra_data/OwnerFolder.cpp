#include "client/kelvra_data/OwnerFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_WIN
#    include <qt_windows.h>

#    include <aclapi.h>
#    include <sddl.h>

#    include <algorithm>
#    include <array>
#    include <memory>
#else
#    include <sys/stat.h>
#    include <unistd.h>
#endif

namespace kelvra_data {

namespace {

#ifdef Q_OS_WIN
struct LocalDeleter
{
    void operator()(void *memory) const { LocalFree(memory); }
};
using Descriptor = std::unique_ptr<void, LocalDeleter>;

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

/** The account as access lists name it; empty on failure. */
QString accountId(PSID account)
{
    wchar_t *name = nullptr;
    if (!ConvertSidToStringSidW(account, &name))
        return {};
    const QString id = QString::fromWCharArray(name);
    LocalFree(name);
    return id;
}

/** The account that this process runs under; empty on failure. */
QString ownAccount()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return {};
    alignas(TOKEN_USER) std::array<char, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> user = {};
    DWORD size = DWORD(user.size());
    const bool known = GetTokenInformation(token, TokenUser, user.data(), size, &size) != 0;
    CloseHandle(token);
    return known ? accountId(reinterpret_cast<TOKEN_USER *>(user.data())->User.Sid) : QString();
}

// Qt sets no rights there but the mark "read-only". The list takes nothing from the folder above, and hands itself on.
bool closeToOthers(const QString &folder)
{
    const QString account = ownAccount();
    const QString rights = QStringLiteral("D:P(A;OICI;FA;;;%1)(A;OICI;FA;;;SY)").arg(account);
    PSECURITY_DESCRIPTOR list = nullptr;
    if (account.isEmpty() ||
        !ConvertStringSecurityDescriptorToSecurityDescriptorW(wide(rights), SDDL_REVISION_1, &list, nullptr))
        return false;
    const Descriptor descriptor(list);
    return SetFileSecurityW(wide(QDir::toNativeSeparators(folder)),
                            DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION, descriptor.get());
}

// Groups that anybody is in. Others, such as those of administrators, are there for a reason.
bool isAnybody(PSID account)
{
    constexpr WELL_KNOWN_SID_TYPE groups[] = {
        WinWorldSid,         WinAuthenticatedUserSid, WinBuiltinUsersSid,       WinInteractiveSid,        WinNetworkSid,
        WinBuiltinGuestsSid, WinAnonymousSid,         WinAccountDomainUsersSid, WinAccountDomainGuestsSid};
    return std::any_of(std::begin(groups), std::end(groups),
                       [account](WELL_KNOWN_SID_TYPE group) { return IsWellKnownSid(account, group) != 0; });
}

bool canOthersWrite(const QString &folder)
{
    PACL list = nullptr;
    PSECURITY_DESCRIPTOR holder = nullptr;
    if (GetNamedSecurityInfoW(wide(QDir::toNativeSeparators(folder)), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION,
                              nullptr, nullptr, &list, nullptr, &holder) != ERROR_SUCCESS)
        return false; // a file system that tells nothing
    const Descriptor descriptor(holder);
    constexpr DWORD writing = FILE_ADD_FILE | FILE_ADD_SUBDIRECTORY | FILE_DELETE_CHILD | WRITE_DAC | WRITE_OWNER |
                              GENERIC_WRITE | GENERIC_ALL;
    bool open = !list; // without a list everybody may do everything
    for (DWORD index = 0; list && index < list->AceCount; ++index) {
        void *entry = nullptr;
        if (!GetAce(list, index, &entry) || static_cast<ACE_HEADER *>(entry)->AceType != ACCESS_ALLOWED_ACE_TYPE)
            continue;
        auto *allowed = static_cast<ACCESS_ALLOWED_ACE *>(entry);
        open |= (allowed->Mask & writing) && !(allowed->Header.AceFlags & INHERIT_ONLY_ACE) &&
                isAnybody(&allowed->SidStart);
    }
    return open;
}

bool create(const QString &folder)
{
    return QDir().mkpath(folder) && closeToOthers(folder);
}

QString closingCommand(const QString &folder)
{
    return QStringLiteral("icacls \"%1\" /inheritance:r /grant:r *%2:(OI)(CI)F").arg(folder, ownAccount());
}
#else
bool create(const QString &folder)
{
    // For the folders above as well, which are made on the way.
    const mode_t before = umask(S_IRWXG | S_IRWXO);
    const bool made = QDir().mkpath(folder);
    umask(before);
    // Again: where the folder above hands rights on to what is made in it, the mask does not count.
    return made && QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

// Where single accounts have rights of their own, the group's bits are the most that any of these has.
bool canOthersWrite(const QString &folder)
{
    return QFile::permissions(folder) & (QFile::WriteGroup | QFile::WriteOther);
}

QString closingCommand(const QString &folder)
{
    return QStringLiteral("chmod go-w \"%1\"").arg(folder);
}
#endif

} // namespace

QString OwnerFolder::prepare(const QString &folder)
{
    const QString shown = QDir::toNativeSeparators(folder);
    if (folder.isEmpty() || (!QFileInfo::exists(folder) && !create(folder)))
        return tr("The data folder %1 cannot be created. Name a folder that you may write to with --data-dir.")
            .arg(shown);
    const QFileInfo info(folder);
    if (!info.isDir())
        return tr("The data folder %1 is not a folder. Name another one with --data-dir.").arg(shown);
#ifndef Q_OS_WIN
    // On Windows it may be an administrator who has made the folder for this account.
    const QString owner = otherOwner(folder);
    if (!owner.isEmpty())
        return tr("The data folder %1 belongs to the account %2. Name a folder of your own with --data-dir, or start "
                  "the client as %2.")
            .arg(shown, owner);
#endif
    if (!info.isReadable() || !info.isExecutable())
        return tr("The data folder %1 cannot be read. Give your account its rights back, or name another folder with "
                  "--data-dir.")
            .arg(shown);
    if (canOthersWrite(folder))
        return tr("Other accounts can write to the data folder %1, so the client does not trust what is in it. Make "
                  "sure that its files are yours and close it (%2), or name another folder with --data-dir.")
            .arg(shown, closingCommand(shown));
    return {};
}

#ifdef Q_OS_WIN
QString OwnerFolder::otherOwner(const QString &path)
{
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR holder = nullptr;
    if (GetNamedSecurityInfoW(wide(QDir::toNativeSeparators(path)), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner,
                              nullptr, nullptr, nullptr, &holder) != ERROR_SUCCESS)
        return {};
    const Descriptor descriptor(holder);
    // What a process with an administrator's rights makes belongs to their group.
    const QString id = accountId(owner);
    if (id == ownAccount() || IsWellKnownSid(owner, WinBuiltinAdministratorsSid))
        return {};
    std::array<wchar_t, 256> name = {};
    std::array<wchar_t, 256> domain = {};
    DWORD nameSize = DWORD(name.size());
    DWORD domainSize = DWORD(domain.size());
    SID_NAME_USE use = {};
    const bool named = LookupAccountSidW(nullptr, owner, name.data(), &nameSize, domain.data(), &domainSize, &use) != 0;
    return named ? QString::fromWCharArray(name.data()) : id;
}
#else
QString OwnerFolder::otherOwner(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists() || info.ownerId() == geteuid())
        return {};
    return info.owner().isEmpty() ? QString::number(info.ownerId()) : info.owner();
}
#endif

QString OwnerFolder::notWritable(const QString &folder)
{
    return tr("The data folder %1 cannot be written to. Give your account its rights back or make room on the disk, or "
              "name another folder with --data-dir.")
        .arg(QDir::toNativeSeparators(folder));
}

} // namespace kelvra_data
