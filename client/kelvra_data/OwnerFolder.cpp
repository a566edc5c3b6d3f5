#include "client/kelvra_data/OwnerFolder.h"

#include <QDir>
#include <QFile>

#ifdef Q_OS_WIN
#    include <qt_windows.h>

#    include <sddl.h>

#    include <array>
#endif

namespace kelvra_data {

namespace {

#ifdef Q_OS_WIN
/** The account that this process runs under, as access lists name it; empty on failure. */
QString ownAccount()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return {};
    alignas(TOKEN_USER) std::array<char, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> user = {};
    DWORD size = DWORD(user.size());
    const bool known = GetTokenInformation(token, TokenUser, user.data(), size, &size) != 0;
    CloseHandle(token);
    wchar_t *name = nullptr;
    if (!known || !ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER *>(user.data())->User.Sid, &name))
        return {};
    const QString account = QString::fromWCharArray(name);
    LocalFree(name);
    return account;
}
#endif

} // namespace

#ifdef Q_OS_WIN
// Qt sets no rights there but the mark "read-only". The list takes nothing from the folder above, and hands itself on.
bool OwnerFolder::closeToOthers(const QString &folder)
{
    const QString account = ownAccount();
    const QString rights = QStringLiteral("D:P(A;OICI;FA;;;%1)(A;OICI;FA;;;SY)").arg(account);
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (account.isEmpty() ||
        !ConvertStringSecurityDescriptorToSecurityDescriptorW(reinterpret_cast<const wchar_t *>(rights.utf16()),
                                                              SDDL_REVISION_1, &descriptor, nullptr))
        return false;
    const QString path = QDir::toNativeSeparators(folder);
    const bool closed = SetFileSecurityW(reinterpret_cast<const wchar_t *>(path.utf16()),
                                         DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION, descriptor);
    LocalFree(descriptor);
    return closed;
}
#else
bool OwnerFolder::closeToOthers(const QString &folder)
{
    return QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}
#endif

} // namespace kelvra_data
