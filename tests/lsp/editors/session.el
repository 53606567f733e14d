;;; session.el --- Emacs 28 with Eglot 1.9  -*- lexical-binding: t -*-
;; What a person does by keys, by the commands that the keys run.

(require 'package)
(package-initialize)
(require 'cl-lib)
(require 'flymake)
(require 'eglot)

(defvar mod (getenv "MOD"))
(define-derived-mode con-mode prog-mode "CON")
(add-to-list 'auto-mode-alist '("\\.CON\\'" . con-mode))
(add-to-list 'eglot-server-programs (list 'con-mode (getenv "TESSEL") "lsp"))
(setq coding-system-for-read 'windows-1252-dos
      coding-system-for-write 'windows-1252-dos
      eglot-confirm-server-initiated-edits nil
      eglot-autoshutdown nil
      make-backup-files nil
      create-lockfiles nil
      auto-save-default nil)

(defun wait-for (what condition)
  "Let the server talk until CONDITION holds."
  (let ((end (time-add nil 20)))
    (while (not (funcall condition))
      (unless (time-less-p nil end) (error "Waited in vain for %s" what))
      (accept-process-output nil 0.05))))

(defun diagnostics (code)
  "Those of the buffer that are about the rule CODE; nil: all."
  (cl-loop for each in (flymake-diagnostics)
           for data = (cdr (assoc 'eglot-lsp-diag (eglot--diag-data each)))
           when (or (null code) (equal (plist-get data :code) code))
           collect each))

(defun action (title)
  "The one at point whose title begins with TITLE, if any."
  (cl-find-if (lambda (each) (string-prefix-p title (plist-get each :title)))
              (eglot-code-actions (point) (point))))

(defun act (title)
  "Execute the action at point whose title begins with TITLE."
  (let ((action (or (action title) (error "There is no action %S" title)))
        (before (buffer-chars-modified-tick)))
    (let ((edit (plist-get action :edit)) (command (plist-get action :command)))
      (when edit (eglot--apply-workspace-edit edit))
      (when command
        (eglot-execute-command (eglot--current-server-or-lose) (intern (plist-get command :command))
                               (plist-get command :arguments))))
    (wait-for title (lambda () (/= before (buffer-chars-modified-tick))))
    (eglot--signal-textDocument/didChange)))

(defun repair (buffer code title)
  "Do what TITLE says about the finding of the rule CODE, until it has gone."
  (with-current-buffer buffer
    (flymake-start)
    ;; Flymake may still show where it was before the last edit.
    (wait-for code (lambda ()
                     (let ((found (car (diagnostics code))))
                       (when found
                         (goto-char (flymake-diagnostic-beg found))
                         (action title)))))
    (act title)
    (wait-for (concat code " to go") (lambda () (not (diagnostics code))))))

(defun go-to (buffer pattern)
  (set-buffer buffer)
  (goto-char (point-min))
  (let ((case-fold-search nil)) (re-search-forward pattern))
  (goto-char (match-beginning 0)))

(defun ask (method)
  (jsonrpc-request (eglot--current-server-or-lose) method
                   (append (eglot--TextDocumentPositionParams) '(:context (:includeDeclaration t)))))

(let* ((default-directory (file-name-as-directory mod))
       (user (find-file-noselect (concat mod "/USER.CON")))
       (defs (find-file-noselect (concat mod "/DEFS.CON")))
       (game (find-file-noselect (concat mod "/GAME.CON"))))
  ;; All three belong to one project.
  (cl-defmethod project-root ((project (head mod))) (cdr project))
  (setq project-find-functions (list (lambda (_) (cons 'mod (file-name-as-directory mod)))))
  (with-current-buffer user (apply #'eglot--connect (eglot--guess-contact)))
  (dolist (buffer (list user defs game))
    (with-current-buffer buffer
      (unless (eglot-managed-p) (eglot--maybe-activate-editing-mode))
      (unless (eglot-managed-p) (error "%s is not managed" buffer))
      (unless flymake-mode (flymake-mode 1))))

  (repair defs "open-comment" "Close the comment")
  (repair user "doubled-define" "Take the line out")
  (repair user "panel-missing" "Insert the line of the template")

  (go-to user "^//")
  (act "Convert to 1.4/1.5")
  (go-to user "^define QSIZE")

  (go-to user "^define TROOPSTRENGTH")
  (act "Set value of TROOPSTRENGTH to 50")
  (let ((before (buffer-chars-modified-tick)))
    (eglot-execute-command (eglot--current-server-or-lose) 'tessel.setValue
                           (vector (eglot--path-to-uri (buffer-file-name)) "Pig Cop" "90"))
    (wait-for "the value" (lambda () (/= before (buffer-chars-modified-tick))))
    (eglot--signal-textDocument/didChange))

  (go-to game "BLOOD$")
  (unless (string-match-p "define BLOOD" (plist-get (plist-get (ask :textDocument/hover) :contents) :value))
    (error "No hover"))
  (unless (string-match-p "DEFS.CON" (plist-get (elt (ask :textDocument/definition) 0) :uri))
    (error "No definition"))
  (unless (>= (length (ask :textDocument/references)) 2) (error "No references"))
  (unless (>= (length (ask :textDocument/documentSymbol)) 10) (error "No symbols"))
  (forward-char 1)
  (unless (>= (length (plist-get (ask :textDocument/completion) :items)) 1) (error "No completion"))

  (eglot-rename "GORE")
  (dolist (buffer (list defs game))
    (with-current-buffer buffer (eglot--signal-textDocument/didChange)))
  (dolist (buffer (list user defs game))
    (with-current-buffer buffer
      (flymake-start)
      (wait-for (format "a clean %s" buffer) (lambda () (not (diagnostics nil))))
      (save-buffer)))
  (set-buffer user)
  (eglot-shutdown (eglot--current-server-or-lose)))
;;; session.el ends here
