/// The small images by which the system shows files and folders, for trees and lists of the host's own.
///
///     m_list.SetImageList(shellImages(), LVSIL_SMALL); // with LVS_SHAREIMAGELISTS
///     m_list.AddItem(row, 0, L"notes.txt", 0, shellImage(L"notes.txt"));
#pragma once

#include <ovoui/export.h>

#include <afxcmn.h>

/// The system's own list, which the host does not destroy; null when the system does not give it. The object
/// is temporary, as that of CImageList::FromHandle.
OVOUI_API CImageList* shellImages();

/// The index of the image for a file called `name`, by the kind of its name alone: the disk is not read.
/// `attributes` are those of a file (FILE_ATTRIBUTE_); FILE_ATTRIBUTE_DIRECTORY stands for a folder, which
/// `open` opens. 0 when the system does not tell.
OVOUI_API int shellImage(LPCWSTR name, DWORD attributes = FILE_ATTRIBUTE_NORMAL, bool open = false);
