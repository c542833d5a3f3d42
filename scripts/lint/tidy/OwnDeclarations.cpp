// A plugin of clang-tidy: the checks walk over what the project itself declares, not over the
// headers of the system, which are most of every source and whose findings nobody would see.
#include <clang/AST/ASTConsumer.h>
#include <clang/AST/ASTContext.h>
#include <clang/Basic/SourceManager.h>
#include <clang/Frontend/FrontendPluginRegistry.h>

namespace {

class OwnDeclarations : public clang::ASTConsumer {
  // Comes before the checks, when everything is parsed.
  void HandleTranslationUnit(clang::ASTContext& context) override {
    const clang::SourceManager& sources = context.getSourceManager();
    std::vector<clang::Decl*> own;
    // Not loaded yet is only what stands in a precompiled header, and that is the system's.
    for (clang::Decl* declaration : context.getTranslationUnitDecl()->noload_decls()) {
      const clang::SourceLocation place = sources.getExpansionLoc(declaration->getLocation());
      if (place.isValid() && !sources.isInSystemHeader(place)) own.push_back(declaration);
    }
    context.setTraversalScope(own);
  }
};

class Action : public clang::PluginASTAction {
  std::unique_ptr<clang::ASTConsumer> CreateASTConsumer(clang::CompilerInstance&,
                                                        llvm::StringRef) override {
    return std::make_unique<OwnDeclarations>();
  }
  bool ParseArgs(const clang::CompilerInstance&, const std::vector<std::string>&) override {
    return true;
  }
  ActionType getActionType() override { return AddBeforeMainAction; }
};

const clang::FrontendPluginRegistry::Add<Action> registration("own-declarations",
                                                              "leaves system headers alone");

}  // namespace
