// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#if canImport(FoundationModels)
import FoundationModels
#endif

// Declared for C++ in languageModel.h. Neither prompts nor downloads.
@_cdecl("quillmarkLanguageModelState")
public func quillmarkLanguageModelState() -> Int32 {
    #if canImport(FoundationModels)
    guard #available(macOS 26.0, *) else { return 5 }
    switch SystemLanguageModel.default.availability {
    case .available:
        return 0
    case .unavailable(.deviceNotEligible):
        return 1
    case .unavailable(.appleIntelligenceNotEnabled):
        return 2
    case .unavailable(.modelNotReady):
        return 3
    @unknown default:
        return 4
    }
    #else
    return -1
    #endif
}
